// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/SearchResultDialog.h"

#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <string>
#include <vector>

#include "shell/Program.h"
#include "store/ObjectRegistry.h"
#include "support/ErrorOf.h"
#include "support/FormObject.h"

namespace velra::test {
namespace {

using namespace std::chrono_literals;

constexpr int kMany = 4000;

/// Knows whether work goes on.
struct WorkFace : CurrentFace {
  bool works = false;
  void showProgress(std::size_t, std::size_t total) override { works = total > 0; }
};

/// Tells when its form opens.
struct AskedObject : FormObject {
  using FormObject::FormObject;
  std::function<void()> onForm;
  void ShowForm(FormOwner&) override { onForm(); }
};

class SearchOfMany : public ::testing::Test {
 protected:
  SearchOfMany() {
    program_.mainForm.OpenFile(program_.sample());
    program_.mainForm.setFace(&face_);
  }
  ~SearchOfMany() override { program_.mainForm.setFace(nullptr); }

  ObjectRegistry& registry() { return program_.document()->collObjects(); }

  /// Of every third object up to four fields hold the text.
  void addMany() {
    for (int i = 0; i < kMany; ++i) {
      const auto object =
          std::make_shared<AskedObject>(program_.app, ObjectKind::Version, "Field0");
      const int fields = i % 3 == 0 ? i % 5 : 0;
      object->add(tyType::String, "Field0", std::to_string(i));
      for (int field = 1; field <= fields; ++field) {
        object->add(tyType::String, "Field" + std::to_string(field), "of the Lighthouse");
      }
      registry().Add(object);
      many_.push_back(object);
    }
  }

  std::vector<std::string> rows() const {
    std::vector<std::string> texts;
    for (const SearchResultDialog::Row& row : dialog_.rows()) {
      texts.push_back(row.type + " " + row.title + " " + std::to_string(row.founds));
    }
    return texts;
  }

  std::vector<std::string> plainRows() {
    std::vector<std::string> texts;
    for (const ObjectRef& object : registry().described()) {
      const std::int16_t founds = object->secol().iSearchText("lighthouse", false);
      if (founds == 0) continue;
      texts.push_back(object->className() + " " + object->strTitle() + " " +
                      std::to_string(founds));
    }
    return texts;
  }

  void show(const std::function<void()>& meanwhile) {
    program_.presenter.onResults = [&](SearchResultDialog&) { meanwhile(); };
    dialog_.ShowDialog(program_.presenter, program_.mainForm, "lighthouse", false, false);
  }

  Program program_;
  WorkFace face_;
  std::vector<std::shared_ptr<AskedObject>> many_;
  SearchResultDialog dialog_{program_.app, program_.mainForm.imlTreeIcons(), {300, 0ms}};
};

TEST_F(SearchOfMany, AFewAreAllThereWhenTheListOpens) {
  show([&] {
    EXPECT_FALSE(dialog_.bSearching());
    EXPECT_FALSE(face_.works);
    EXPECT_EQ(rows(), plainRows());
  });
}

TEST_F(SearchOfMany, TheRestComesInTheSameOrderWhileItIsShown) {
  addMany();
  show([&] {
    const std::vector<std::string> all = plainRows();
    std::size_t calls = 0;
    std::size_t told = 0;
    dialog_.onSearched = [&] { ++told; };
    std::size_t before = 0;
    do {
      EXPECT_TRUE(dialog_.bSearching());
      EXPECT_TRUE(face_.works);
      EXPECT_LT(dialog_.rows().size(), all.size());
      EXPECT_GT(dialog_.rows().size(), before);
      before = dialog_.rows().size();
      ++calls;
    } while (dialog_.searchOn(0ms));
    EXPECT_EQ(told, calls);
    EXPECT_GT(calls, 5U);
    EXPECT_FALSE(face_.works);
    EXPECT_EQ(rows(), all);
    EXPECT_FALSE(dialog_.searchOn(0ms));
  });
}

TEST_F(SearchOfMany, EndsWithTheListWhereverItIs) {
  addMany();
  show([&] { dialog_.searchOn(0ms); });
  EXPECT_FALSE(face_.works);
  EXPECT_FALSE(dialog_.bSearching());
  EXPECT_TRUE(rows().empty());
  for (const auto& object : many_) EXPECT_EQ(object.use_count(), 2) << "the registry and the test";
  show([&] { EXPECT_TRUE(dialog_.bSearching()); });
}

TEST_F(SearchOfMany, IsAtItsEndBeforeAFormChangesAnything) {
  addMany();
  show([&] {
    const std::vector<std::string> all = plainRows();
    std::size_t row = 1;
    while (dialog_.rows()[row - 1].Tag != many_[3]) ++row;
    bool opened = false;
    many_[3]->onForm = [&] {
      opened = true;
      EXPECT_FALSE(face_.works);
      many_.back()->add(tyType::String, "Later", "lighthouse");
    };
    dialog_.ListView1_Click({});
    EXPECT_TRUE(dialog_.bSearching()) << "no form opens";
    dialog_.ListView1_Click({row});
    EXPECT_TRUE(opened);
    EXPECT_FALSE(dialog_.searchOn(0ms));
    EXPECT_EQ(rows(), all);
  });
}

TEST_F(SearchOfMany, RaisesTheErrorOfAnObjectWhereItsRowWouldCome) {
  addMany();
  const auto bad = std::make_shared<FormObject>(program_.app, ObjectKind::Version);
  const std::vector<std::string> before = plainRows();
  bad->add(tyType::SetOfStrings, "Set", StringList(40'000, "lighthouse"));  // more than 16 bits
  registry().Add(bad);
  addMany();
  const auto toTheEnd = [&] {
    while (dialog_.searchOn(0ms)) {
    }
  };
  show([&] {
    EXPECT_EQ(errorOf(toTheEnd), kOverflow);
    EXPECT_EQ(rows(), before);
    EXPECT_EQ(errorOf([&] { dialog_.ListView1_Click({1}); }), kOverflow) << "no form opens";
    EXPECT_EQ(rows(), before);
  });
}

}  // namespace
}  // namespace velra::test
