// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/LateRelease.h"

#include <gtest/gtest.h>

#include <thread>
#include <utility>
#include <vector>

namespace velra {
namespace {

/// Notes at its end which one it was, and on which thread that came.
struct Ends {
  struct Note {
    int number;
    std::thread::id thread;
  };

  Ends(std::vector<Note>& into, int number) : notes(&into), number(number) {}
  Ends(Ends&& other) noexcept : notes(std::exchange(other.notes, nullptr)), number(other.number) {}
  Ends(const Ends&) = delete;
  Ends& operator=(const Ends&) = delete;
  Ends& operator=(Ends&&) = delete;
  ~Ends() {
    if (notes) notes->push_back({number, std::this_thread::get_id()});
  }

  std::vector<Note>* notes;
  int number;
};

TEST(LateRelease, EndsAllInOrderOnAnotherThreadAlsoWhenItGoesItself) {
  std::vector<Ends::Note> notes;
  {
    LateRelease release;
    release.await();  // nothing
    for (const int number : {1, 2}) release.take(Ends(notes, number));
    release.await();
    ASSERT_EQ(notes.size(), 2U);
    for (const int number : {3, 4}) release.take(Ends(notes, number));
  }
  ASSERT_EQ(notes.size(), 4U);
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(notes[static_cast<std::size_t>(i)].number, i + 1);
    EXPECT_NE(notes[static_cast<std::size_t>(i)].thread, std::this_thread::get_id());
  }
}

}  // namespace
}  // namespace velra
