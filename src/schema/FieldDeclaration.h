// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>

namespace velra {

/// The value types of fields. The numbers are part of the interface.
enum class tyType : std::int32_t {
  String = 0,
  Integer = 1,
  Date = 2,
  Bool = 3,
  SetOfStrings = 4,
  Real = 5,
  CloseList = 6,
  ChunkTime = 7,
  WordList = 8,
  SetOfGUIDs = 9,
  Unknow = 10,
};

/// What the schema says of a field. Shared by the fields of all objects of a class.
struct FieldDeclaration {
  tyType type = tyType::String;
  std::string strCloseList;  // the closed list's name; empty for all other types
  std::string strName;
  std::string strLowerName;  // relation fields are found by the lower-cased name
  std::string strComment;
  bool bReadOnly = false;
  bool bIgnore = false;
};

/// A hold on a shared declaration, for one thread. It is one pointer wide, where the library's own
/// is two and counts for all threads: the fields of a large document hold one each, and there are
/// more than a million of them.
// One assignment takes copies and moves.
// NOLINTNEXTLINE(cppcoreguidelines-special-member-functions)
class DeclarationRef {
 public:
  DeclarationRef() = default;
  explicit DeclarationRef(FieldDeclaration declaration)
      : shared_(new Shared{std::move(declaration), 1}) {}
  DeclarationRef(const DeclarationRef& other) : shared_(other.shared_) {
    if (shared_) ++shared_->holds;
  }
  DeclarationRef(DeclarationRef&& other) noexcept
      : shared_(std::exchange(other.shared_, nullptr)) {}
  DeclarationRef& operator=(DeclarationRef other) noexcept {
    std::swap(shared_, other.shared_);
    return *this;
  }
  ~DeclarationRef() {
    if (shared_ && --shared_->holds == 0) delete shared_;
  }

  explicit operator bool() const { return shared_ != nullptr; }
  const FieldDeclaration& operator*() const { return shared_->declaration; }
  const FieldDeclaration* operator->() const { return &shared_->declaration; }

 private:
  struct Shared {
    FieldDeclaration declaration;
    std::size_t holds;
  };
  Shared* shared_ = nullptr;
};

}  // namespace velra
