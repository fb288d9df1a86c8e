// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <exception>
#include <string>

#include "protocol/ObjectForm.h"

namespace velra {

class DescribedObject;
class VideoExpression;

/// The two trees of the main window.
enum class TreeId { tvwMainTree, tvwExpression };

/// Whether long work may be left in its midst, when the person closes the program.
enum class Leaving { NotBefore, AtOnce };

/// The person closes the program in the midst of work that may be left. It is no error: whoever
/// runs events lets it end there.
class LeftInWork : public std::exception {};

/// The main window as objects and forms see it.
class MainWindow : public FormOwner {
 public:
  virtual std::string strStatusBarText() const = 0;
  virtual void setStrStatusBarText(const std::string& text) = 0;

  /// Gives the object's nodes its present title.
  virtual void UpdateNodeTitle(const DescribedObject& object) = 0;
  /// Rebuilds a tree; the right one for the given Version, or empty.
  virtual void ResetTree(TreeId tree, const std::shared_ptr<DescribedObject>& version) = 0;
  /// Removes the first tree icon of that key.
  virtual void RemoveIcon(const std::string& key) = 0;
  /// Makes the tree icon of one video from its small picture.
  virtual void AddSmallKeyFrame(const VideoExpression& video) = 0;
  virtual void UpdateSmallKeyFrames() = 0;

  // Long work, as LongWork tells it. A window may show nothing of it.
  virtual void workBegins(std::size_t /*parts*/, Leaving /*leaving*/) {}
  /// One part more is done; one beyond their number counts nothing. Raises LeftInWork.
  virtual void workSteps() {}
  /// None is done, since something outside of the program is waited for. To be called some ten
  /// times in a second. Raises LeftInWork.
  virtual void workWaits() {}
  virtual void workEnds() {}
};

}  // namespace velra
