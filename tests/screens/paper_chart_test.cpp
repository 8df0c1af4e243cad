#include "screens/kit/paper_chart.h"

#include <gtest/gtest.h>

#include <QImage>

#include "screens/kit/grid_delegate.h"
#include "screens/kit/ink.h"
#include "screens/kit/theme.h"

namespace trv5 {
namespace {

struct Restore {
  ~Restore() { Theme::edit().setDark(false); }
};

QImage picture(PaperChart& chart, QSize size = {436, 284}) {
  chart.resize(size);
  QImage image(size, QImage::Format_RGB32);
  chart.render(&image);
  return image;
}

int count(const QImage& image, Rgb colour) {
  int found = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) found += image.pixelColor(x, y) == toColor(colour) ? 1 : 0;
  return found;
}

BarChart threeBars() {
  return {.bars = {{QStringLiteral("15"), QStringLiteral("60"), 60, false},
                   {QStringLiteral("16"), QStringLiteral("30"), 30, true},
                   {QStringLiteral("17"), QStringLiteral("0"), 0, true}},
          .own = 1,
          .ownText = QStringLiteral("la tua: 16 casi")};
}

CurveChart curve(int steps) {
  CurveChart made{.points = {},
                  .ticks = {{0, QStringLiteral("1950")}, {steps / 2, QStringLiteral("1990")}},
                  .curve = QStringLiteral("formula scelta"),
                  .expected = QStringLiteral("caso"),
                  .band = QStringLiteral("95 archivi su 100")};
  for (int i = 1; i <= steps; ++i) made.points.push_back({.value = -0.02 * i, .low = -0.1 * i, .high = 0.1 * i});
  return made;
}

TEST(PaperChart, IsWhitePaperInBothThemesAndOnlyItsBandFollows) {
  const Restore restore;
  PaperChart chart(QStringLiteral("Casi coperti"));
  chart.setBars(threeBars());
  const QImage light = picture(chart);
  Theme::edit().setDark(true);
  const QImage dark = picture(chart);
  const int below = Theme::current().heading() + 1;
  const QRect sheet(1, below, light.width() - 2, light.height() - below - 1);
  EXPECT_EQ(light.copy(sheet), dark.copy(sheet));
  EXPECT_GT(count(light, kPaper), light.width() * light.height() / 3);
  EXPECT_GT(count(dark, kDarkColours.heading), 0);
  EXPECT_EQ(count(dark, kLightColours.heading), 0);
}

TEST(PaperChart, DrawsABarAsHighAsItsShareInTheColourOfWhatItSays) {
  PaperChart chart(QStringLiteral("Casi coperti"));
  chart.setBars(threeBars());
  const QImage whole = picture(chart);
  const QImage image = whole.copy(whole.rect().adjusted(1, 1, -1, -1));  // without the frame
  const double rest = count(image, kLightColours.edge), reaching = count(image, kLightColours.accent);
  EXPECT_NEAR(rest / reaching, 2, 0.12);  // 60 beside 30, and nothing for the empty one
  EXPECT_EQ(count(image, Verde), 0);
}

TEST(PaperChart, ShowsTheOwnLabelOnGreenOnlyWhereItIsToldTo) {
  PaperChart chart(QStringLiteral("Casi coperti"));
  BarChart bars = threeBars();
  bars.rare = true;
  chart.setBars(bars);
  EXPECT_GT(count(picture(chart), Verde), 200);
}

TEST(PaperChart, DrawsACurveOverItsBandAndTheLinesOfItsScale) {
  PaperChart chart(QStringLiteral("Prova dopo prova"));
  chart.setCurve(curve(500));
  const QImage image = picture(chart, {508, 434});
  EXPECT_GT(count(image, kLightColours.accent), 200);
  EXPECT_GT(count(image, kLightColours.voidArea), 20000);
  EXPECT_GT(count(image, kGridLine), 100);
}

TEST(PaperChart, FindsAPlaceForManyBarsOneStepAndNoRoomAtAll) {
  PaperChart chart(QStringLiteral("Casi coperti"));
  BarChart many;
  for (int i = 0; i < 400; ++i) many.bars.push_back({QString::number(i), QStringLiteral("9.999"), 1.0 * i, i > 300});
  many.own = 399;
  many.ownText = QStringLiteral("la tua: 399 casi");
  chart.setBars(many);
  EXPECT_GT(count(picture(chart, {300, 150}), kLightColours.accent), 0);
  chart.setCurve(curve(1));
  EXPECT_GT(count(picture(chart, {300, 150}), kLightColours.voidArea), 0);
  picture(chart, {20, 10});
}

TEST(PaperChart, TellsItsFiguresToAScreenReader) {
  PaperChart chart(QStringLiteral("Casi coperti"));
  chart.setBars(threeBars());
  EXPECT_EQ(chart.accessibleName(), QStringLiteral("Casi coperti"));
  EXPECT_EQ(chart.accessibleDescription(), QStringLiteral("15: 60; 16: 30; 17: 0; la tua: 16 casi"));
}

TEST(PaperChart, DividesItsScaleByRoundNumbers) {
  EXPECT_EQ(scaleStep(25, 3), 10);
  EXPECT_EQ(scaleStep(0.4, 3), 1);
  EXPECT_EQ(scaleStep(160, 3), 50);
  EXPECT_EQ(scaleStep(9, 5), 2);
}

}  // namespace
}  // namespace trv5
