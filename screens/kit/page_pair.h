#pragma once

#include <QWidget>
#include <array>

#include "core/controls.h"

class QBoxLayout;
class QFrame;
class QSplitter;
class QTabWidget;
class QVBoxLayout;

namespace trv5 {

class PageHeading;

/// Two pages of a tab control: one behind the other under their tabs where there is little room, else side by side,
/// each under its heading. Side by side nothing is hidden: the page in front has the underlined heading, and gets the
/// focus when an operation brings it there.
class PagePair : public QWidget {
  Q_OBJECT
 public:
  /// The pages stand in the order in which `control` tells its tabs. A page's focus proxy gets the focus for it.
  /// `framed`: with panels of their own; else inside what surrounds them.
  /// `tools`: what stands in the line of a page's tab or heading, at its right end; null for none.
  PagePair(Tabs& control, const std::array<QWidget*, 2>& pages, bool framed, const std::array<QWidget*, 2>& tools = {},
           QWidget* parent = nullptr);

  void setSideBySide(bool sideBySide);
  bool sideBySide() const { return m_sideBySide; }
  QSplitter* splitter() const { return m_splitter; }

 private:
  struct Side {
    QFrame* frame = nullptr;
    QVBoxLayout* layout = nullptr;
    QBoxLayout* head = nullptr;
    PageHeading* heading = nullptr;
  };

  void build(bool framed);
  void movePages();
  void showFront();

  Tabs& m_control;
  std::array<QWidget*, 2> m_pages, m_tools;
  std::array<Side, 2> m_sides;
  QFrame* m_narrow = nullptr;
  QTabWidget* m_tabs = nullptr;
  QBoxLayout* m_corner = nullptr;  // beside the tabs; null without tools
  QSplitter* m_splitter = nullptr;
  bool m_sideBySide = false;
  int m_front = -1;
};

}  // namespace trv5
