#include "screens/shell/help_viewer.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <QTextBrowser>
#include <QTextFragment>

#include "form_world.h"
#include "help/help_pages.h"
#include "screens/shell/help_search.h"

namespace trv5 {
namespace {

TEST(HelpSearch, FindsThePagesThatHoldAllTheWords) {
  const std::vector<HelpHit> hits = searchHelp(QStringLiteral("mappa CASI"));
  ASSERT_FALSE(hits.empty());
  EXPECT_EQ(hits.front().page.fileName(), QStringLiteral("mappa.html")) << "words in the title come first";
  for (const HelpHit& hit : hits) EXPECT_FALSE(hit.title.isEmpty() || hit.line.isEmpty());
  EXPECT_TRUE(searchHelp(QStringLiteral("   ")).empty());
  EXPECT_TRUE(searchHelp(QStringLiteral("zzqx")).empty());
}

TEST(HelpViewer, ASearchListsItsHitsAndAClickOpensThePage) {
  HelpViewer viewer;
  viewer.open(helpIndex());
  shown(viewer, 700, 600);
  auto& words = *viewer.findChild<QLineEdit*>(QStringLiteral("cerca"));
  auto& hits = *viewer.findChild<QListWidget*>(QStringLiteral("trovate"));
  EXPECT_FALSE(hits.isVisible());
  QTest::keyClicks(&words, QStringLiteral("mappa dei casi"));
  settle();
  ASSERT_TRUE(hits.isVisible());
  ASSERT_GT(hits.count(), 0);
  Q_EMIT hits.itemClicked(hits.item(0));
  EXPECT_EQ(viewer.page().fileName(), QStringLiteral("mappa.html"));
  words.clear();
  settle();
  EXPECT_FALSE(hits.isVisible());
}

TEST(HelpViewer, PicturesAreNoWiderThanTheWindow) {
  HelpViewer viewer;
  viewer.open(QUrl(QStringLiteral("qrc:/help/banco.html")));
  for (const int width : {900, 500, 1300}) {
    shown(viewer, width, 600);
    for (int i = 0; i < 3; ++i) settle();
    auto& page = *viewer.findChild<QTextBrowser*>(QStringLiteral("pagina"));
    EXPECT_LE(page.document()->size().width(), page.viewport()->width() + 1) << width;
  }
}

TEST(HelpViewer, StandsBesideWhatItExplains) {
  const QRect desktop(0, 0, 1920, 1040);
  const QSize size(760, 640);
  EXPECT_EQ(besideOf({100, 50, 860, 400}, {300, 200}, size, desktop).left(), 960);
  EXPECT_EQ(besideOf({1000, 50, 860, 400}, {1200, 200}, size, desktop).right(), 999);
  const QRect whole(0, 0, 1920, 1040);
  EXPECT_FALSE(besideOf(whole, {300, 200}, size, desktop).contains(QPoint(300, 200)));
  EXPECT_FALSE(besideOf(whole, {1700, 200}, size, desktop).contains(QPoint(1700, 200)));
  for (const QPoint& corner : {QPoint(0, 900), QPoint(1500, 1000)})
    EXPECT_TRUE(desktop.contains(besideOf({corner, QSize(300, 300)}, corner, size, desktop)));
}

}  // namespace
}  // namespace trv5
