// The form of the systems beside the plain transcription of its rules, click by click, on random tables.
#include <fmt/format.h>

#include <random>

#include "support/random_runs.h"
#include "systems_world.h"

namespace trv5 {
namespace {

// A stored system: its width, and the marks of its rows.
struct StoredSystem {
  std::string name;
  int width = 0;
  std::vector<std::string> marks;
};

using Texts = std::vector<std::vector<std::string>>;

// The rules as they are told: grids are tables of texts, row 0 is a heading.
struct PlainSystems {
  Texts FgSy = Texts(1), Fg99 = Texts(1), fG88 = Texts(1);
  std::vector<bool> yellow = std::vector<bool>(90);
  std::string label = "0", colour;

  bool load(const StoredSystem& system) {
    FgSy = Texts(100);
    for (std::size_t r = 0; r < system.marks.size(); ++r) {
      if (r + 1 == FgSy.size()) return false;
      FgSy[r + 1].push_back(std::to_string(r + 1));
      for (std::size_t k = 1; k <= 90 && k <= system.marks[r].size(); ++k)
        if (system.marks[r][k - 1] == 'X') FgSy[r + 1].push_back(std::to_string(k));
    }
    prepare();
    return true;
  }
  void prepare() {
    std::vector<bool> flags(91);
    for (const auto& row : FgSy)
      for (std::size_t column = 1; column < row.size(); ++column)
        flags[static_cast<std::size_t>(std::stoi(row[column]))] = true;
    Fg99 = Texts(1);
    for (std::size_t n = 1; n <= 90; ++n)
      if (flags[n]) Fg99.push_back({std::to_string(n)});
    yellow = std::vector<bool>(90);
    label = "0";
    fG88 = Texts(1);
  }
  void click(int number) {
    const auto count = [this] { return static_cast<std::size_t>(std::count(yellow.begin(), yellow.end(), true)); };
    const auto at = static_cast<std::size_t>(number - 1);
    if (yellow[at])
      yellow[at] = false;
    else if (count() < Fg99.size() - 1)
      yellow[at] = true;
    label = std::to_string(count());
    colour = count() == Fg99.size() - 1 ? "green" : "yellow";
  }
  void replace(int width) {
    for (auto& row : Fg99) row.resize(1);
    std::size_t next = 1;
    for (std::size_t n = 1; n <= 90; ++n)
      if (yellow[n - 1] && next < Fg99.size()) Fg99[next++].push_back(std::to_string(n));
    fG88 = Texts(1);
    for (std::size_t r = 1; r < FgSy.size(); ++r) {
      if (FgSy[r].size() < 2) continue;
      auto& row = fG88.emplace_back();
      row.push_back(std::to_string(fG88.size() - 1));
      for (std::size_t k = 1; k <= static_cast<std::size_t>(width); ++k) {
        std::string cell;
        if (k < FgSy[r].size())
          for (std::size_t i = 1; i < Fg99.size(); ++i)
            if (Fg99[i][0] == FgSy[r][k]) {
              cell = Fg99[i].size() > 1 ? Fg99[i][1] : "0";
              break;
            }
        row.push_back(cell);
      }
    }
  }
};

std::string difference(const Grid& grid, const Texts& table) {
  if (grid.rows() != static_cast<int>(table.size()))
    return fmt::format("{} rows instead of {}", grid.rows(), table.size());
  for (int r = 1; r < grid.rows(); ++r) {
    const std::vector<std::string>& row = table[static_cast<std::size_t>(r)];
    for (int c = 0; c < std::max(grid.columns(), static_cast<int>(row.size())); ++c) {
      const std::string own = c < grid.columns() ? grid.text(r, c) : "";
      const std::string told = c < static_cast<int>(row.size()) ? row[static_cast<std::size_t>(c)] : "";
      if (own != told) return fmt::format("row {} column {}: \"{}\" instead of \"{}\"", r, c, own, told);
    }
  }
  return "";
}

std::vector<StoredSystem> randomSystems(std::mt19937& rng) {
  const auto draw = [&rng](unsigned most) { return static_cast<int>(rng() % most); };
  std::vector<StoredSystem> systems;
  for (int i = 0; i < 6; ++i) {
    StoredSystem& system = systems.emplace_back();
    system.name = "sistema " + std::to_string(i);
    system.width = draw(12);
    const int rows = draw(6) == 0 ? 100 : draw(30), spread = 3 + draw(20), numbers = 5 + draw(86);
    for (int row = 0; row < rows; ++row) {
      std::string& marks = system.marks.emplace_back(static_cast<std::size_t>(draw(4) == 0 ? draw(91) : 90), ' ');
      for (std::size_t k = 0; k < std::min(marks.size(), static_cast<std::size_t>(numbers)); ++k)
        if (draw(static_cast<unsigned>(spread)) == 0) marks[k] = "XXXx.1"[draw(6)];
    }
  }
  return systems;
}

// Tables that take any row.
std::string tablesOf(const std::vector<StoredSystem>& systems) {
  std::string sql =
      "DROP TABLE Sist_OrtoSv; DROP TABLE Sist_Ortogonali;"
      "CREATE TABLE Sist_Ortogonali (IdOrto INTEGER PRIMARY KEY, Denominazione TEXT, sviluppo, Numeri);"
      "CREATE TABLE Sist_OrtoSv (RifOrto INTEGER, NuRiga, Qn, Num TEXT);";
  for (std::size_t i = 0; i < systems.size(); ++i) {
    sql += fmt::format("INSERT INTO Sist_Ortogonali VALUES ({0}, '{1}', {2}, {0});", i + 1, systems[i].name,
                       systems[i].width);
    for (std::size_t row = 0; row < systems[i].marks.size(); ++row)
      sql += fmt::format("INSERT INTO Sist_OrtoSv VALUES ({}, {}, NULL, '{}');", i + 1, row + 1, systems[i].marks[row]);
  }
  return "BEGIN;" + sql + "COMMIT;";
}

struct TwoForms {
  explicit TwoForms(std::mt19937& rng) : systems(randomSystems(rng)), world({}, tablesOf(systems)) {}

  void compare(const std::string& after) {
    EXPECT_EQ(difference(world.form.FgSy, plain.FgSy), "") << "FgSy after " << after;
    EXPECT_EQ(difference(world.form.Fg99, plain.Fg99), "") << "Fg99 after " << after;
    EXPECT_EQ(difference(world.form.fG88, plain.fG88), "") << "fG88 after " << after;
    for (int n = 1; n <= 90; ++n) EXPECT_EQ(world.picked(n), plain.yellow[static_cast<std::size_t>(n - 1)]) << after;
    EXPECT_EQ(world.form.Label20.text(), plain.label) << after;
    if (plain.colour.empty()) return;
    EXPECT_EQ(world.form.Label20.back(), plain.colour == "green" ? Verde : Giallo) << after;
  }

  void act(std::mt19937& rng) {
    const int system = static_cast<int>(rng() % systems.size());
    switch (rng() % 12) {
      case 0: {
        selected = system;
        const std::size_t boxes = world.shell.shown.size();
        world.loadSystem(systems[static_cast<std::size_t>(system)].name);
        const bool loaded = plain.load(systems[static_cast<std::size_t>(system)]);
        EXPECT_EQ(world.shell.shown.size() - boxes, loaded ? 0U : 1U);
        return compare("a double click");
      }
      case 1:
        selected = system;
        world.form.FgSistemi.clickCell(system + 1, 2);
        return compare("a click on the list");
      case 2:
        world.form.Command34.press();
        plain.prepare();
        return compare("PREPARA");
      case 3:
      case 4:
        if (selected < 0) return;
        world.form.Command36.press();
        plain.replace(systems[static_cast<std::size_t>(selected)].width);
        return compare("SOSTITUISCI");
      default: {
        const int number = 1 + static_cast<int>(rng() % 90);
        world.click(number);
        plain.click(number);
        return compare("a click on " + std::to_string(number));
      }
    }
  }

  std::vector<StoredSystem> systems;
  SystemsWorld world;
  PlainSystems plain;
  int selected = -1;
};

TEST(OrthogonalSystemsRandom, ShowWhatThePlainRulesShowAfterEveryClick) {
  for (unsigned seed = 1; seed <= static_cast<unsigned>(randomRuns(40)) && !testing::Test::HasFailure(); ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 rng(seed);
    TwoForms forms(rng);
    for (int action = 0; action < 150 && !testing::Test::HasFailure(); ++action) forms.act(rng);
  }
}

}  // namespace
}  // namespace trv5
