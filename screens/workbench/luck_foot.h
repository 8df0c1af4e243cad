#pragma once

#include <QLabel>
#include <vector>

#include "cases/workbench.h"

class QCheckBox;
class QGridLayout;
class QPushButton;

namespace trv5 {

/// The sentence of `LblCaso` with the number of searches in a quieter colour; in a low window its short form on one
/// line, cut where it is too long. Its tooltip has the whole.
class LuckText : public QLabel {
  Q_OBJECT
 public:
  explicit LuckText(Workbench& w, QWidget* parent = nullptr);
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const Workbench& m_w;
};

/// The foot of Ricerca: what tells how much of the ranking is luck. In a low window it is one row of icons beside the
/// sentence.
class LuckFoot : public QWidget {
  Q_OBJECT
 public:
  explicit LuckFoot(Workbench& w, QWidget* parent = nullptr);

 private:
  void arrange();

  std::vector<QPushButton*> m_commands;
  QCheckBox* m_always;
  LuckText* m_text;
  QGridLayout* m_grid;
};

}  // namespace trv5
