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

GraphPage::GraphPage(const Parts& parts, QWidget* parent) : QStackedWidget(parent), parts_(parts) {
    frameCommandEnabled = BuildAdvice();
    frameGraph = BuildPlot();
    addWidget(frameCommandEnabled);
    addWidget(frameGraph);
    // only now, since both go through the buttons that were made above
    DrawIcons();
    SyncEnabled();
}

QWidget* GraphPage::BuildAdvice() {
    auto* frame = new QWidget(this);
    frame->setObjectName(QStringLiteral("frameCommandEnabled"));
    auto* title = new QLabel(ToQt(parts_.Words, app_texts::kAdviceTitle), frame);
    // relative to the font in use: users who need large letters have set them
    QFont large = title->font();
    large.setPointSizeF(large.pointSizeF() * 1.5);
    title->setFont(large);
    auto* advice = new QLabel(ToQt(parts_.Words, app_texts::kAdvice), frame);
    advice->setWordWrap(true);

    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(12);
    buttons->addWidget(LargeButton("cmdAdviceOpen", "Open"));
    buttons->addWidget(LargeButton("cmdAdviceTalvexK42", "TalvexK42"));
    buttons->addWidget(LargeButton("cmdAdvicePocketPC", "PocketPC"));
    buttons->addStretch();

    lblRecent = new QLabel(ToQt(parts_.Words, app_texts::kRecentHeading), frame);
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
    auto* button = new QPushButton(ToQt(parts_.Words, FindToolbarRow(key)->ToolTip), this);
    button->setObjectName(QString::fromLatin1(name));
    button->setProperty(kKeyProperty, QString::fromLatin1(key));
    button->setIconSize({32, 32});
    button->setMinimumHeight(56);
    connect(button, &QPushButton::clicked, this,
            // keys are literals and outlive the button
            [this, key] { parts_.Registry.ToolbarButtonClick(key); });
    largeButtons_.append(button);
    return button;
}

QWidget* GraphPage::BuildPlot() {
    auto* frame = new QWidget(this);
    frame->setObjectName(QStringLiteral("frameGraph"));
    DynaPlot1 = new DynaPlot(parts_.Plot, parts_.Locale, frame);
    DynaPlot1->setObjectName(QStringLiteral("DynaPlot1"));
    DynaPlot1->setAccessibleName(ToQt(parts_.Words, app_texts::kPlotName));
    Scroll1 = new PlotScrollBar(frame);
    Scroll1->setAccessibleName(ToQt(parts_.Words, app_texts::kScrollName));
    connect(Scroll1, &PlotScrollBar::Scrolled, this,
            [this](double minimum) { parts_.Navigation.ScrollTo(minimum); });
    auto* layout = new QVBoxLayout(frame);
    layout->setContentsMargins(6, 6, 6, 6);
    // the plot alone grows with the window
    layout->addWidget(DynaPlot1, 1);
    layout->addWidget(Scroll1);
    layout->addLayout(BuildFindRow(frame));
    return frame;
}

QLayout* GraphPage::BuildFindRow(QWidget* frame) {
    auto* lblFindPoint = new QLabel(ToQt(parts_.Words, app_texts::kFindLabel), frame);
    lblFindPoint->setObjectName(QStringLiteral("lblFindPoint"));
    txtFindPoint = new QLineEdit(frame);
    txtFindPoint->setObjectName(QStringLiteral("txtFindPoint"));
    txtFindPoint->setFixedWidth(
        txtFindPoint->fontMetrics().horizontalAdvance(QStringLiteral("30-Mmm-2000 00:00:00  ")));
    // the label's letter leads into the box
    lblFindPoint->setBuddy(txtFindPoint);
    cmdFindPoint = new QPushButton(ToQt(parts_.Words, app_texts::kFindPoint), frame);
    cmdFindPoint->setObjectName(QStringLiteral("cmdFindPoint"));
    lblFindPointErr = new QLabel(frame);
    lblFindPointErr->setObjectName(QStringLiteral("lblFindPointErr"));
    // it repeats what was typed
    lblFindPointErr->setTextFormat(Qt::PlainText);
    connect(txtFindPoint, &QLineEdit::textChanged, this, [this] { CheckFindPoint(); });
    connect(txtFindPoint, &QLineEdit::returnPressed, cmdFindPoint, &QPushButton::click);
    connect(cmdFindPoint, &QPushButton::clicked, this, [this] { cmdFindPoint_Click(); });
    CheckFindPoint();

    auto* row = new QHBoxLayout;
    row->addWidget(lblFindPoint);
    row->addWidget(txtFindPoint);
    row->addWidget(cmdFindPoint);
    row->addWidget(lblFindPointErr, 1);
    return row;
}

void GraphPage::CheckFindPoint() {
    const std::string text = FromQt(txtFindPoint->text());
    const std::string message = text.empty() ? std::string() : parts_.Finder.Check(text);
    cmdFindPoint->setEnabled(!text.empty() && message.empty());
    lblFindPointErr->setText(ToQt(message));
}

void GraphPage::cmdFindPoint_Click() {
    lblFindPointErr->setText(ToQt(parts_.Finder.Find(FromQt(txtFindPoint->text()))));
}

void GraphPage::FocusFindPoint() {
    txtFindPoint->setFocus(Qt::ShortcutFocusReason);
    txtFindPoint->selectAll();
}

void GraphPage::ShowPlotFrame(bool hasReadings) {
    setCurrentWidget(hasReadings ? frameGraph : frameCommandEnabled);
}

void GraphPage::SyncEnabled() {
    // the recent files too: a second load must not start
    frameCommandEnabled->setEnabled(!parts_.Registry.Busy());
    for (QPushButton* button : std::as_const(largeButtons_)) {
        const auto* row = FindToolbarRow(FromQt(button->property(kKeyProperty).toString()));
        button->setEnabled(parts_.Registry.Enabled(row->Command));
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
        link->setToolTip(AsToolTip(path));
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
