#pragma once

#include <QString>
#include <QWidget>
#include <vector>

namespace trv5 {

/// Bars side by side, one of them perhaps the user's own.
struct BarChart {
  struct Bar {
    QString label;         ///< under the axis
    QString value;         ///< over the bar
    double height = 0;     ///< 0 or more, in any unit that all of them share
    bool reaches = false;  ///< in the colour of what is the user's or reaches it
  };
  std::vector<Bar> bars = {};
  int own = -1;          ///< the bar that `ownText` points at; -1: none
  QString ownText = {};  ///< "la tua: 16 casi"
  bool rare = false;     ///< the own label stands on the colour of what is covered
};

/// A curve along equal steps, beside its expectation (0) and the band around it.
struct CurveChart {
  struct Point {
    double value = 0, low = 0, high = 0;
  };
  struct Tick {
    int step = 0;  ///< 0: before the first point
    QString text;
  };
  std::vector<Point> points = {};                ///< the first is step 1; at step 0 all is 0
  std::vector<Tick> ticks = {};                  ///< along the axis, ascending; those that find no room are left out
  QString curve = {}, expected = {}, band = {};  ///< the legend
};

/// A chart as a sheet of paper, white in every theme like the grids: a band with its title, and below it bars or a
/// curve. It computes nothing but where things stand.
class PaperChart : public QWidget {
  Q_OBJECT
 public:
  explicit PaperChart(const QString& title, QWidget* parent = nullptr);

  void setTitle(const QString& title);
  /// What stands in the middle as long as there is nothing to draw.
  void setEmptyText(const QString& text);
  void setBars(BarChart bars);
  void setCurve(CurveChart curve);
  void clear();
  const BarChart& bars() const { return m_bars; }
  const CurveChart& curve() const { return m_curve; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void paintBand(QPainter& painter, const QRect& band) const;
  void tell();

  QString m_title, m_emptyText;
  BarChart m_bars;
  CurveChart m_curve;
};

/// Steps of a scale from -`most` to `most`, or from 0: 1, 2 or 5 times a power of ten, at most `lines` of them up to
/// `most`. 1 or more.
int scaleStep(double most, int lines);

}  // namespace trv5
