#pragma once

#include <QIcon>
#include <QString>
#include <QWidget>

namespace trv5 {

/// What an icon is drawn in: the colour of the text that it stands beside.
enum class IconInk { Text, OnAccent, Danger, Quiet };

/// One of the program's line icons, by the name of its file in screens/icons without ".svg". It is drawn at the size
/// asked for and in the colour of the theme of the moment, so it needs no change with the theme.
QIcon icon(const QString& name, IconInk ink = IconInk::Text);

/// The program's mark, in its own colours.
QIcon programMark();

/// An icon by itself, `size` x `size` logical pixels.
class IconLabel : public QWidget {
  Q_OBJECT
 public:
  IconLabel(QIcon icon, int size, QWidget* parent = nullptr);
  QSize sizeHint() const override { return {m_size, m_size}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QIcon m_icon;
  int m_size;
};

}  // namespace trv5
