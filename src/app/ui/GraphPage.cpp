#include "app/ui/GraphPage.h"

#include <QEvent>
#include <QFileInfo>
#include <QHBoxLayout>

#include "app/AppTexts.h"
#include "app/ToolbarTable.h"
#include "app/ui/IconStore.h"
#include "platform/qt/QtText.h"

namespace brask {
namespace {

// Ties a large button to its row of the toolbar's table, where its tip, picture and command stand.
constexpr const char* kKeyProperty = "toolbarKey";

}  // namespace

GraphPage::GraphPage(const Chart& chart, const UserLocale& locale, const Texts& texts,
                     Commands& commands, QWidget* parent)
    : QStackedWidget(parent), texts_(texts), commands_(commands) {
    frameCommandEnabled = BuildAdvice();
    frameGraph = BuildPlot(chart, locale);
    addWidget(frameCommandEnabled);
    addWidget(frameGraph);
    // only now, since both go through the buttons that were made above
    DrawIcons();
    SyncEnabled();
}

QWidget* GraphPage::BuildAdvice() {
    auto* frame = new QWidget(this);
    frame->setObjectName(QStringLiteral("frameCommandEnabled"));
    auto* title = new QLabel(ToQt(texts_, app_texts::kAdviceTitle), frame);
    // relative to the font in use: users who need large letters have set them
    QFont large = title->font();
    large.setPointSizeF(large.pointSizeF() * 1.5);
    title->setFont(large);
    auto* advice = new QLabel(ToQt(texts_, app_texts::kAdvice), frame);
    advice->setWordWrap(true);

    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(12);
    buttons->addWidget(LargeButton("cmdAdviceOpen", "Open"));
    buttons->addWidget(LargeButton("cmdAdviceTalvexK42", "TalvexK42"));
    buttons->addWidget(LargeButton("cmdAdvicePocketPC", "PocketPC"));
    buttons->addStretch();

    lblRecent = new QLabel(ToQt(texts_, app_texts::kRecentHeading), frame);
    recentList_ = new QVBoxLayout;
    recentList_->setSpacing(2);

    auto* column = new QVBoxLayout;
    // a little above the middle, where the eye looks first
    column->addStretch(2);
    column->addWidget(title);
    column->addWidget(advice);
    column->addSpacing(12);
    column->addLayout(buttons);
    column->addSpacing(20);
    column->addWidget(lblRecent);
    column->addLayout(recentList_);
    column->addStretch(3);
    auto* layout = new QHBoxLayout(frame);
    layout->addStretch(1);
    layout->addLayout(column, 6);
    layout->addStretch(1);
    return frame;
}

QPushButton* GraphPage::LargeButton(const char* name, const char* key) {
    auto* button = new QPushButton(ToQt(texts_, FindToolbarRow(key)->ToolTip), this);
    button->setObjectName(QString::fromLatin1(name));
    button->setProperty(kKeyProperty, QString::fromLatin1(key));
    button->setIconSize({32, 32});
    button->setMinimumHeight(56);
    connect(button, &QPushButton::clicked, this,
            // keys are literals and outlive the button
            [this, key] { commands_.ToolbarButtonClick(key); });
    largeButtons_.append(button);
    return button;
}

QWidget* GraphPage::BuildPlot(const Chart& chart, const UserLocale& locale) {
    auto* frame = new QWidget(this);
    frame->setObjectName(QStringLiteral("frameGraph"));
    DynaPlot1 = new DynaPlot(chart, locale, frame);
    DynaPlot1->setObjectName(QStringLiteral("DynaPlot1"));
    Scroll1 = new QScrollBar(Qt::Horizontal, frame);
    Scroll1->setObjectName(QStringLiteral("Scroll1"));
    // present and disabled, as everything whose work is yet to come
    Scroll1->setEnabled(false);

    auto* lblFindPoint = new QLabel(ToQt(texts_, app_texts::kFindLabel), frame);
    lblFindPoint->setObjectName(QStringLiteral("lblFindPoint"));
    txtFindPoint = new QLineEdit(frame);
    txtFindPoint->setObjectName(QStringLiteral("txtFindPoint"));
    txtFindPoint->setMaximumWidth(220);
    txtFindPoint->setEnabled(false);
    // the label's letter leads into the box
    lblFindPoint->setBuddy(txtFindPoint);
    cmdFindPoint = new QPushButton(ToQt(texts_, app_texts::kFindPoint), frame);
    cmdFindPoint->setObjectName(QStringLiteral("cmdFindPoint"));
    cmdFindPoint->setEnabled(false);

    auto* row = new QHBoxLayout;
    row->addWidget(lblFindPoint);
    row->addWidget(txtFindPoint);
    row->addWidget(cmdFindPoint);
    row->addStretch();
    auto* layout = new QVBoxLayout(frame);
    layout->setContentsMargins(6, 6, 6, 6);
    // the plot alone grows with the window
    layout->addWidget(DynaPlot1, 1);
    layout->addWidget(Scroll1);
    layout->addLayout(row);
    return frame;
}

void GraphPage::ShowPlotFrame(bool hasReadings) {
    setCurrentWidget(hasReadings ? frameGraph : frameCommandEnabled);
}

void GraphPage::SyncEnabled() {
    // the recent files too: a second load must not start
    frameCommandEnabled->setEnabled(!commands_.Busy());
    for (QPushButton* button : std::as_const(largeButtons_)) {
        const auto* row = FindToolbarRow(FromQt(button->property(kKeyProperty).toString()));
        button->setEnabled(commands_.Enabled(row->Command));
    }
}

void GraphPage::ShowRecentFiles(const QStringList& paths,
                                const std::function<void(QString)>& open) {
    while (QLayoutItem* item = recentList_->takeAt(0)) {
        // not at once: one of these buttons may be in the middle of its click
        item->widget()->deleteLater();
        delete item;
    }
    lblRecent->setVisible(!paths.isEmpty());
    for (const QString& path : paths) {
        auto* link = new QPushButton(
            // a lone "&" would be taken for the mark of a letter
            QFileInfo(path).fileName().replace(QStringLiteral("&"), QStringLiteral("&&")),
            frameCommandEnabled);
        link->setFlat(true);
        link->setCursor(Qt::PointingHandCursor);
        link->setToolTip(path);
        connect(link, &QPushButton::clicked, this, [open, path] { open(path); });
        recentList_->addWidget(link, 0, Qt::AlignLeft);
    }
}

void GraphPage::DrawIcons() {
    for (QPushButton* button : std::as_const(largeButtons_)) {
        const auto* row = FindToolbarRow(FromQt(button->property(kKeyProperty).toString()));
        button->setIcon(DrawnIcon(QString::fromLatin1(row->Image), palette()));
    }
}

void GraphPage::changeEvent(QEvent* event) {
    QStackedWidget::changeEvent(event);
    // there is no signal for a change between light and dark: the palette tells
    if (event->type() == QEvent::PaletteChange) DrawIcons();
}

}  // namespace brask
