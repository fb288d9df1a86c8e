// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <utility>

namespace velra {

/// Where the files of a new folder are made: in a hidden one beside it that takes its place when
/// all are there. Nobody meets one of them half written, though each is made under its name, which
/// costs half of giving it the name when it is whole.
class HiddenFolder {
 public:
  /// A path for one beside a folder, with a separator at its end, which no other call gives.
  static std::string pathBeside(const std::string& folder);

  /// None: the files are made where they are to be.
  HiddenFolder() = default;
  /// `folder`, with a separator at its end, is there, was made a moment ago and is empty. A path of
  /// "" is none.
  HiddenFolder(std::string folder, std::string path)
      : folder_(std::move(folder)), path_(std::move(path)) {}

  /// Makes the folder. Where it cannot be made, all is as with none.
  void make();
  bool bMade() const { return made_; }

  /// Where a file is made that is to have this path.
  std::string placeOf(const std::string& path) const;

  /// The same text with the paths that the files are to have.
  std::string strTold(std::string text) const;

  /// Takes the place. False where somebody has put something there: the files stay where they are
  /// then, for the caller to bring them over.
  bool bTakesPlace();
  /// Leaves it as it is when it holds anything.
  void remove();

 private:
  std::string folder_;
  std::string path_;
  bool made_ = false;
};

}  // namespace velra
