#pragma once

#include <QWidget>
#include <functional>

namespace trv5 {

/// A page that stands behind others: its widgets are made when it is first shown, or when somebody asks.
class LazyPage : public QWidget {
  Q_OBJECT
 public:
  explicit LazyPage(std::function<QWidget*()> make);
  /// Makes the page now. A page is made once.
  void make();
  bool isMade() const { return m_make == nullptr; }

 Q_SIGNALS:
  void made();

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  std::function<QWidget*()> m_make;
};

/// Makes the first of the pages below `top` that isn't made yet. False when all of them are.
bool makeOnePage(const QWidget& top);
/// Makes them all.
void makePages(const QWidget& top);

}  // namespace trv5
