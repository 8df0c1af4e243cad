#include "help/help_pages.h"

#include <gtest/gtest.h>

#include <QFile>
#include <filesystem>
#include <fstream>
#include <map>
#include <nlohmann/json.hpp>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace trv5 {
namespace {

namespace fs = std::filesystem;

std::string textOf(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  std::stringstream text;
  text << in.rdbuf();
  return text.str();
}

std::vector<std::string> allMatches(const std::string& text, const std::regex& pattern) {
  std::vector<std::string> found;
  for (std::sregex_iterator i(text.begin(), text.end(), pattern), end; i != end; ++i) found.push_back((*i)[1].str());
  return found;
}

/// The pages as the build made them, by file name.
std::map<std::string, std::string> allPages() {
  std::map<std::string, std::string> pages;
  for (const auto& entry : fs::directory_iterator(TRV5_HELP_HTML)) {
    const fs::path source = fs::path(TRV5_HELP_SOURCE) / entry.path().stem();
    // A page taken out of the sources may still lie in a build folder that is used again.
    if (fs::exists(source.string() + ".md")) pages[entry.path().filename().string()] = textOf(entry.path());
  }
  return pages;
}

std::vector<std::string> linksOf(const std::string& html) {
  return allMatches(html, std::regex("href=\"([^\"]*)\""));
}

bool hasAnchor(const std::string& html, const std::string& anchor) {
  return html.find("<a name=\"" + anchor + "\">") != std::string::npos;
}

/// "" when the address leads to a page, and to an anchor of it where it names one; else what is missing.
std::string missingBehind(const std::map<std::string, std::string>& pages, const std::string& from,
                          const std::string& address) {
  const auto hash = address.find('#');
  const std::string page = hash == 0 ? from : address.substr(0, hash);
  const auto found = pages.find(page);
  if (found == pages.end()) return "no page " + page;
  if (hash == std::string::npos) return "";
  return hasAnchor(found->second, address.substr(hash + 1)) ? "" : "no anchor " + address;
}

nlohmann::json contexts() {
  return nlohmann::json::parse(textOf(fs::path(TRV5_HELP_SOURCE) / "contexts.json"));
}

TEST(HelpPages, EveryContextOpensAPageThatHoldsItsAnchor) {
  const auto pages = allPages();
  const nlohmann::json all = contexts();
  for (const auto& [context, address] : all.items()) {
    EXPECT_NE(address.get<std::string>().find('#'), std::string::npos) << context;
    EXPECT_EQ(missingBehind(pages, "", address.get<std::string>()), "") << context;
  }
}

TEST(HelpPages, StartShellAndWorkbenchHaveTheirContexts) {
  EXPECT_EQ(helpPage(210).toString(), QStringLiteral("qrc:/help/avvio.html#inizio"));
  EXPECT_EQ(helpPage(220).toString(), QStringLiteral("qrc:/help/finestra.html#finestra"));
  EXPECT_EQ(helpPage(290).toString(), QStringLiteral("qrc:/help/banco.html#banco"));
}

TEST(HelpPages, AContextOrScreenWithoutAPageOpensTheIndex) {
  EXPECT_EQ(helpPage(0), helpIndex());
  EXPECT_EQ(helpPageOfScreen(QStringLiteral("Nessuna")), helpIndex());
  EXPECT_NE(helpPageOfScreen(QStringLiteral("Estrazioni_minielenco")), helpIndex());
}

TEST(HelpPages, EveryPageAndPictureIsInTheProgram) {
  const auto inProgram = [](const std::string& name) {
    return QFile::exists(QStringLiteral(":/help/") + QString::fromStdString(name));
  };
  EXPECT_TRUE(inProgram("contexts.json"));
  for (const auto& [name, html] : allPages()) {
    EXPECT_TRUE(inProgram(name)) << name;
    for (const std::string& picture : allMatches(html, std::regex("<img src=\"([^\"]*)\""))) {
      EXPECT_TRUE(inProgram(picture)) << name << ": " << picture;
    }
  }
}

TEST(HelpPages, EveryLinkLeadsToAPageAndAnAnchor) {
  const auto pages = allPages();
  ASSERT_GT(pages.size(), 20U);
  for (const auto& [name, html] : pages) {
    for (const std::string& link : linksOf(html)) EXPECT_EQ(missingBehind(pages, name, link), "") << name;
  }
}

TEST(HelpPages, EveryPageIsReachedFromTheIndexAndLeadsBackToIt) {
  const auto pages = allPages();
  std::set<std::string> reached{"indice.html"};
  std::vector<std::string> open{"indice.html"};
  while (!open.empty()) {
    const std::string page = open.back();
    open.pop_back();
    for (const std::string& link : linksOf(pages.at(page))) {
      const std::string target = link.substr(0, link.find('#'));
      if (pages.contains(target) && reached.insert(target).second) open.push_back(target);
    }
  }
  for (const auto& [name, html] : pages) {
    EXPECT_TRUE(reached.contains(name)) << name;
    EXPECT_TRUE(name == "indice.html" || html.find("href=\"indice.html\"") != std::string::npos) << name;
  }
}

TEST(HelpPages, EveryPageHasOneHeadingWhichIsItsTitle) {
  for (const auto& [name, html] : allPages()) {
    const auto titles = allMatches(html, std::regex("<title>([^<]+)</title>"));
    const auto headings = allMatches(html, std::regex("<h1><a name=\"[a-z-]+\"></a>([^<]+)</h1>"));
    ASSERT_EQ(titles.size(), 1U) << name;
    EXPECT_EQ(titles, headings) << name;
  }
}

TEST(HelpPages, AnAnchorStandsOnceInItsPage) {
  for (const auto& [name, html] : allPages()) {
    std::set<std::string> seen;
    for (const std::string& anchor : allMatches(html, std::regex("<a name=\"([^\"]*)\"")))
      EXPECT_TRUE(seen.insert(anchor).second) << name << ": " << anchor;
  }
}

TEST(HelpPages, EveryPictureIsShownSomewhereAndSmall) {
  const fs::path folder = fs::path(TRV5_HELP_SOURCE) / "img";
  if (!fs::exists(folder)) return;
  std::set<std::string> shown;
  for (const auto& [name, html] : allPages()) {
    for (const std::string& picture : allMatches(html, std::regex("<img src=\"([^\"]*)\""))) shown.insert(picture);
  }
  for (const auto& picture : fs::directory_iterator(folder)) {
    EXPECT_TRUE(shown.contains("img/" + picture.path().filename().string())) << picture.path();
    EXPECT_LT(fs::file_size(picture.path()), 140'000U) << picture.path();
  }
}

}  // namespace
}  // namespace trv5
