// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

namespace velra {

class DescribedObject;

/// A window that can own a modal form. What it is, only the windows know.
class FormOwner {
 public:
  virtual ~FormOwner() = default;
};

/// The form of one object, made with it and kept by it. It is built anew each time it shows, and is
/// memory alone between two showings: it ends with its object, which may be on another thread.
class ObjectForm {
 public:
  virtual ~ObjectForm() = default;

  /// Set when the object has loaded; the object owns the form and outlives it.
  virtual void setObject(const std::shared_ptr<DescribedObject>& object) = 0;

  /// Builds the form and shows it over the owner until it closes. Run-time errors of its load pass
  /// to the caller; kFormUnloaded when it closed itself while loading.
  virtual void Show(FormOwner& owner) = 0;

  /// Closes the form if it is loaded.
  virtual void Unload() = 0;
};

}  // namespace velra
