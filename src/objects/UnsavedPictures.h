// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velra {

class OpenDocument;

/// Has the pictures that no saved object points at go with the document, when it is closed. With
/// `keep` the store of unsaved work gets those first that kept objects need.
void dropUnsavedPictures(OpenDocument& document, bool keep);

}  // namespace velra
