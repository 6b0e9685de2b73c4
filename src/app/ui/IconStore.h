// The program's drawn icons, in the colours of the palette in force: dark ink on light windows,
// light ink on dark ones.
#pragma once

#include <QIcon>
#include <QPalette>
#include <QString>

namespace brask {

// The picture of that name in one style; a null icon for a name without picture.
QIcon DrawnIcon(const QString& name, const QPalette& palette);
// The program's own icon, the same in every scheme.
QIcon ProgramIcon();

}  // namespace brask
