#pragma once

#include <QIcon>
#include <QPixmap>
#include <QString>

namespace trv5 {

/// What an icon is drawn in: the colour of the text that it stands beside.
enum class IconInk { Text, OnAccent, Danger, Quiet };

/// One of the program's line icons, by the name of its file in screens/icons without ".svg". It is drawn at the size
/// asked for and in the colour of the theme of the moment, so it needs no change with the theme.
QIcon icon(const QString& name, IconInk ink = IconInk::Text);

/// The same as a picture of `size` x `size` logical pixels.
QPixmap iconPixmap(const QString& name, int size, qreal devicePixelRatio, IconInk ink = IconInk::Text);

/// The program's mark, in its own colours.
QIcon programMark();

}  // namespace trv5
