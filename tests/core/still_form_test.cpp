// A form that stands still: its views hear of what changed meanwhile once, at the end.
#include <gtest/gtest.h>

#include "core/controls.h"
#include "support/fake_shell.h"

namespace trv5 {
namespace {

struct Views {
  Views() {
    name.setListener([this] { ++ofName; });
    other.setListener([this] { ++ofOther; });
    cases.setListener([this] { ++ofLooks; });
    cases.setGridListener([this](const GridChange& change) {
      ++ofCells;
      last = change.what;
    });
  }
  void change() {
    name.setText(name.text() + "x");
    name.setText(name.text() + "y");
    cases.appendRow();
    cases.setText(1, 0, name.text());
    cases.setEmptyText(name.text());
  }
  FakeShell shell;
  Form form{shell, "Prova", "Prova"};
  Label name{form, "Label1"}, other{form, "Label2"};
  GridControl cases{form, "Fg1", "a|b"};
  int ofName = 0, ofOther = 0, ofLooks = 0, ofCells = 0;
  GridChange::What last = GridChange::What::Cell;
};

TEST(StillForm, TellsItsViewsOnceAtTheEnd) {
  Views v;
  {
    const Form::Still still(v.form);
    v.change();
    EXPECT_EQ(v.ofName + v.ofLooks + v.ofCells, 0);
  }
  EXPECT_EQ(v.ofName, 1);
  EXPECT_EQ(v.ofLooks, 1);
  EXPECT_EQ(v.ofCells, 1);
  EXPECT_EQ(v.last, GridChange::What::All);
  EXPECT_EQ(v.ofOther, 0);
  v.name.setText("z");
  EXPECT_EQ(v.ofName, 2);
}

TEST(StillForm, WaitsForTheLastOfSeveral) {
  Views v;
  auto outer = std::make_unique<Form::Still>(v.form);
  {
    const Form::Still inner(v.form);
    v.change();
  }
  EXPECT_EQ(v.ofName + v.ofCells, 0);
  outer.reset();
  EXPECT_EQ(v.ofName, 1);
  EXPECT_EQ(v.ofCells, 1);
}

TEST(StillForm, SaysNothingWhereNothingChanged) {
  Views v;
  { const Form::Still still(v.form); }
  EXPECT_EQ(v.ofName + v.ofOther + v.ofLooks + v.ofCells, 0);
}

}  // namespace
}  // namespace trv5
