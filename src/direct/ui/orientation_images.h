#pragma once

// Qt
#include <QIcon>
#include <QPixmap>
#include <QString>

namespace tnw::direct {

// The six orientation images of the judgment page, drawn by us: "Smiling" (benefit-oriented),
// "Crying" (cost-oriented), each plain, selected ("Smiling1", "Crying1") and as the reference
// attribute ("Smiling2", "Crying2"). Any other name gives an empty pixmap.
QPixmap orientationPixmap(const QString& name, int size, qreal devicePixelRatio = 1.0);

// The same image as an icon, sharp at 100 % and 200 % scale.
QIcon orientationIcon(const QString& name);

}  // namespace tnw::direct
