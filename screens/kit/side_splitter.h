#pragma once

#include <QSplitter>
#include <map>

class QSettings;

namespace trv5 {

/// Three parts side by side: the outer ones have a width of their own, the middle takes the rest. Handles that the user
/// moves stay where they are put, for each density of the screen.
class SideSplitter : public QSplitter {
  Q_OBJECT
 public:
  /// `name`: under which the widths are remembered. The widths are meant at the compact density's font, and grow with
  /// the font.
  SideSplitter(QString name, QWidget* left, QWidget* middle, QWidget* right, int leftWidth, int rightWidth);

  /// Lays itself out as the whole of a screen, with the theme's unit around it.
  void fill(QWidget& screen);

  void restore(const QSettings& settings);
  void store(QSettings& settings) const;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  QString memoryKey() const;
  void layOut();

  QString m_name;
  int m_leftWidth, m_rightWidth;
  std::map<QString, std::pair<int, int>> m_moved;  // by density: widths of left and right
};

}  // namespace trv5
