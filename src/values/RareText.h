// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>

namespace velra {

/// A text in a record of which there are many, and which nearly always is empty: it takes one word
/// then.
class RareText {
 public:
  RareText() = default;
  RareText(const std::string& text) { *this = text; }
  RareText(const char* text) : RareText(std::string(text)) {}
  RareText(const RareText& other) : RareText(other.text()) {}
  RareText(RareText&&) noexcept = default;
  RareText& operator=(const RareText& other) { return *this = other.text(); }
  RareText& operator=(RareText&&) noexcept = default;
  RareText& operator=(const std::string& text) {
    text_ = text.empty() ? nullptr : std::make_unique<const std::string>(text);
    return *this;
  }
  ~RareText() = default;

  std::string text() const { return text_ ? *text_ : std::string(); }

 private:
  std::unique_ptr<const std::string> text_;
};

}  // namespace velra
