#pragma once

#include <QLabel>

namespace trv5 {

/// A small text whose figure, behind the first colon, stands out from the quiet words before it.
class FigureNote : public QLabel {
  Q_OBJECT
 public:
  explicit FigureNote(QWidget* parent = nullptr);
  /// With all of its text.
  int wholeWidth() const;
  /// Takes what room it is given, and asks for none.
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString words() const;
};

/// What luck has to say on a table: what it covers, and behind it or on the next line what it costs and pays. Where
/// there is room for the first alone the rest of the line is the second's, and stays empty where nothing of it could be
/// read.
class LuckLine : public QWidget {
  Q_OBJECT
 public:
  LuckLine(FigureNote* expected, QLabel* balance, QWidget* parent = nullptr);
  void setTwoLines(bool two);
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  bool event(QEvent* event) override;

 private:
  void place();

  FigureNote* m_expected;
  QLabel* m_balance;
  bool m_twoLines = false;
};

}  // namespace trv5
