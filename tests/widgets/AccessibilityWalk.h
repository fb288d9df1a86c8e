// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

class QWidget;

namespace velra::test {

/// What a person with a screen reader, or a test that finds controls by name, would stumble over in
/// a window that shows: a control that takes the focus and has no name (a list: no label), a focus
/// on something without a role, two controls that cannot be told apart, a control without an object
/// name.
std::vector<std::string> accessibilityFaults(QWidget& window);

}  // namespace velra::test
