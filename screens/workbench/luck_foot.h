#pragma once

#include <QLabel>
#include <vector>

#include "cases/workbench.h"

class QCheckBox;
class QGridLayout;
class QPushButton;

namespace trv5 {

/// The sentence of `LblCaso` with the number of searches in a quieter colour; where there is little room its short form
/// on one line, cut where it is too long. Its tooltip has the whole.
class LuckText : public QLabel {
  Q_OBJECT
 public:
  explicit LuckText(Workbench& w, QWidget* parent = nullptr);
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  friend class LuckFoot;
  const Workbench& m_w;
  bool m_low = false;  // the short form
};

/// The foot of Ricerca: what tells how much of the ranking is luck. Where there is little room it is one row of icons
/// beside the short form of the sentence.
class LuckFoot : public QWidget {
  Q_OBJECT
 public:
  explicit LuckFoot(Workbench& w, QWidget* parent = nullptr);
  /// Other panels leave it no width for the whole sentence.
  void setNarrow(bool narrow);

 private:
  void follow();
  void arrange();

  Workbench& m_w;
  bool m_narrow = false;
  std::vector<QPushButton*> m_commands;
  QCheckBox* m_always;
  LuckText* m_text;
  QGridLayout* m_grid;
};

}  // namespace trv5
