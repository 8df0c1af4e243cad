#include "screens/kit/theme.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QStyle>
#include <QStyleOption>

#include "screens/kit/ink.h"

namespace trv5 {
namespace {

struct Restore {
  ~Restore() {
    Theme::edit().setDark(false);
    Theme::edit().setBasePoints(0);
    Theme::edit().setWindowHeight(1080);
  }
};

TEST(Theme, TextStandsOutOnItsGroundInBothThemes) {
  for (const ChromeColours& c : {kLightColours, kDarkColours}) {
    for (const Rgb ground : {c.window, c.panel, c.field, c.button, c.voidArea, c.rail}) {
      EXPECT_GE(contrast(c.text, ground), 7);
      EXPECT_GE(contrast(c.text2, ground), 4.5);
    }
    EXPECT_GE(contrast(c.onAccent, c.accent), 4.5);
    EXPECT_GE(contrast(c.headingText, c.heading), 4.5);
    EXPECT_GE(contrast(c.danger, c.button), 4.5);
    EXPECT_GE(contrast(c.edge, c.panel), 3);
  }
}

TEST(Theme, DialogsAndMenusFollowThroughThePalette) {
  const Restore restore;
  for (const bool dark : {false, true}) {
    Theme::edit().setDark(dark);
    const ChromeColours& c = dark ? kDarkColours : kLightColours;
    const QPalette palette = QApplication::palette();
    EXPECT_EQ(palette.color(QPalette::Window), toColor(c.window));
    EXPECT_EQ(palette.color(QPalette::Base), toColor(c.field));
    EXPECT_EQ(palette.color(QPalette::WindowText), toColor(c.text));
    EXPECT_EQ(palette.color(QPalette::Highlight), toColor(c.accent));
    EXPECT_EQ(palette.color(QPalette::HighlightedText), toColor(c.onAccent));
    EXPECT_EQ(palette.color(QPalette::Disabled, QPalette::Text), toColor(c.disabled));
  }
}

QImage arrow(QStyle::PrimitiveElement element, QPalette palette, QPalette::ColorGroup group) {
  QImage drawn(16, 16, QImage::Format_ARGB32_Premultiplied);
  drawn.fill(Qt::transparent);
  QPainter painter(&drawn);
  QStyleOption option;
  option.rect = drawn.rect();
  option.state = group == QPalette::Disabled ? QStyle::State_None : QStyle::State_Enabled;
  option.palette = std::move(palette);
  option.palette.setCurrentColorGroup(group);
  QApplication::style()->drawPrimitive(element, &option, &painter);
  return drawn;
}

// One palette for each widget would leave a name for each in Qt's cache of pictures, for ever.
TEST(Theme, ArrowsTakeTheColoursOfTheSchemeNotTheWidgets) {
  const Restore restore;
  QImage scheme[2];
  for (const bool dark : {false, true}) {
    Theme::edit().setDark(dark);
    for (const auto element : {QStyle::PE_IndicatorArrowUp, QStyle::PE_IndicatorArrowDown,
                               QStyle::PE_IndicatorArrowLeft, QStyle::PE_IndicatorArrowRight}) {
      const QImage enabled = arrow(element, QApplication::palette(), QPalette::Active);
      EXPECT_EQ(arrow(element, QPalette(Qt::red), QPalette::Active), enabled) << element << dark;
      EXPECT_NE(arrow(element, QApplication::palette(), QPalette::Disabled), enabled) << element << dark;
      scheme[dark ? 1 : 0] = enabled;
    }
  }
  EXPECT_NE(scheme[0], scheme[1]);
}

TEST(Theme, TheStyleSheetHasEveryMarkFilledInAndStaysShort) {
  const Restore restore;
  for (const bool dark : {false, true}) {
    Theme::edit().setDark(dark);
    EXPECT_FALSE(Theme::current().styleSheet().contains(QLatin1Char('@')));
    EXPECT_TRUE(Theme::current().styleSheet().contains(toColor(Theme::current().colours().accent).name()));
  }
  EXPECT_LT(Theme::current().styleSheet().count(QLatin1Char('\n')), 100);
}

TEST(Theme, LowWindowsAreLaidOutCompactly) {
  const Restore restore;
  Theme::edit().setWindowHeight(900);
  EXPECT_EQ(Theme::current().density(), Theme::Density::Comfortable);
  EXPECT_EQ(Theme::current().basePoints(), 10.5);
  const int row = Theme::current().row(), control = Theme::current().control(), unit = Theme::current().unit();
  Theme::edit().setWindowHeight(899);
  EXPECT_EQ(Theme::current().density(), Theme::Density::Compact);
  EXPECT_EQ(Theme::current().basePoints(), 10);
  EXPECT_LT(Theme::current().row(), row);
  EXPECT_LT(Theme::current().control(), control);
  EXPECT_LT(Theme::current().unit(), unit);
}

TEST(Theme, SizesAt96DotsAreThoseOfTheDesign) {
  const Restore restore;
  Theme::edit().setWindowHeight(1080);
  EXPECT_NEAR(Theme::current().row(), 24, 1);
  EXPECT_NEAR(Theme::current().control(), 30, 1);
  EXPECT_EQ(Theme::current().unit(), 8);
  Theme::edit().setWindowHeight(768);
  EXPECT_NEAR(Theme::current().row(), 20, 1);
  EXPECT_NEAR(Theme::current().control(), 26, 1);
  EXPECT_EQ(Theme::current().unit(), 6);
}

TEST(Theme, TheBaseSizeStaysBetweenNineAndAHalfAndSixteenInHalves) {
  const Restore restore;
  Theme::edit().setBasePoints(30);
  EXPECT_EQ(Theme::current().basePoints(), 16);
  Theme::edit().stepBase(0.5);
  EXPECT_EQ(Theme::current().basePoints(), 16);
  Theme::edit().setBasePoints(1);
  EXPECT_EQ(Theme::current().basePoints(), 9.5);
  Theme::edit().setBasePoints(11.2);
  EXPECT_EQ(Theme::current().basePoints(), 11);
  Theme::edit().setBasePoints(0);
  EXPECT_EQ(Theme::current().chosenPoints(), 0);
}

TEST(Theme, NoTextIsSmallerThanNineAndAHalfPoints) {
  const Restore restore;
  for (const int height : {720, 1080})
    for (const double points : {0.0, 9.5, 10.0, 14.0}) {
      Theme::edit().setWindowHeight(height);
      Theme::edit().setBasePoints(points);
      EXPECT_GE(Theme::current().smallPoints(), 9.5);
      EXPECT_GE(Theme::current().basePoints(), Theme::current().smallPoints());
      EXPECT_GE(Theme::current().control(), 24);
    }
}

TEST(Ink, IsTheCellsOwnWhileItCanBeRead) {
  EXPECT_EQ(readableInk(kBlack, kWhite), kInk);
  EXPECT_EQ(readableInk(0xFF0000, kWhite), 0xFF0000u);
  EXPECT_EQ(readableInk(kBlack, 0x00FF00), kInk);
}

TEST(Ink, IsChosenByLuminanceWhereTheOwnOneCantBeRead) {
  EXPECT_EQ(readableInk(kBlack, 0x0000FF), kWhite);
  EXPECT_EQ(readableInk(0x0000FF, 0x0000C0), kWhite);
  EXPECT_EQ(readableInk(0xFFFF00, kWhite), kInk);
  EXPECT_EQ(readableInk(kWhite, 0x00FF00), kInk);
}

TEST(Ink, StandsOutOnEveryDataColour) {
  for (const Rgb back :
       {GialloChiaro, GialloMedio, Giallo,     VerdeChiaro,   VerdeMedio,   Verde,    VerdeScuro,  VerdeBuio,
        ViolaChiaro,  ViolaMedio,  Viola,      AranciaChiaro, AranciaMedio, Arancia,  CianoChiaro, CianoMedio,
        Ciano,        RossoChiaro, RossoMedio, Rosso,         BluChiaro,    BluMedio, Blu,         BluScuro})
    EXPECT_GE(contrast(readableInk(kBlack, back), back), 3) << std::hex << back;
}

}  // namespace
}  // namespace trv5
