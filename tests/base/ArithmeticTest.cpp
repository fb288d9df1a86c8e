// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Arithmetic.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "support/ErrorOf.h"

namespace velra {
namespace {

using test::errorOf;

TEST(Arithmetic, RoundsTiesToEven) {
  const struct {
    double value;
    double rounded;
  } cases[] = {
      {0, 0},         {0.5, 0},
      {1.5, 2},       {2.5, 2},
      {-0.5, 0},      {-1.5, -2},
      {-2.5, -2},     {2.4999, 2},
      {-2.5001, -3},  {0.49999999999999994, 0},
      {1e15, 1e15},   {4503599627370497.5, 4503599627370498.0},
      {1e300, 1e300},
  };
  for (const auto& one : cases) EXPECT_EQ(roundHalfEven(one.value), one.rounded) << one.value;
}

TEST(Arithmetic, RefusesWhatDoesNotFit) {
  constexpr double kInfinite = std::numeric_limits<double>::infinity();
  EXPECT_EQ(toInt16(32767.5 - 0.001), 32767);
  EXPECT_EQ(toInt16(-32768.5), -32768) << "ties to even";
  EXPECT_EQ(toInt32(2147483647.4), 2147483647);
  for (const double value : {32767.5, -32769.0, 1e300, kInfinite, -kInfinite, std::nan("")}) {
    EXPECT_EQ(errorOf([&] { toInt16(value); }), kOverflow) << value;
  }
  for (const double value : {2147483647.5, -2147483649.0, std::nan("")}) {
    EXPECT_EQ(errorOf([&] { toInt32(value); }), kOverflow) << value;
  }
  EXPECT_EQ(addInt16(32766, 1), 32767);
  EXPECT_EQ(errorOf([] { addInt16(32767, 1); }), kOverflow);
  EXPECT_EQ(errorOf([] { addInt16(-32768, -1); }), kOverflow);
  EXPECT_EQ(multiplyInt16(9, 3600), 32400);
  EXPECT_EQ(errorOf([] { multiplyInt16(10, 3600); }), kOverflow);
  EXPECT_EQ(errorOf([] { multiplyInt16(-32768, -1); }), kOverflow);
}

}  // namespace
}  // namespace velra
