// SPDX-License-Identifier: GPL-3.0-or-later

// A schema that an archive wrote: every class is asked for.

#include "base/RunTimeError.h"
#include "fuzz/FuzzSession.h"
#include "schema/CloseList.h"
#include "schema/SchemaFile.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static velra::fuzz::FuzzSession session;
  const velra::SchemaFile schema(session.app, session.file(data, size, "schema.xsd"));
  velra::CloseLists lists;
  for (const char* name : {"AVDocument", "Version", "Media", "Storage", "Video", "Transcript"}) {
    try {
      schema.classDeclaration(name, lists);
    } catch (const velra::RunTimeError&) {
      // What no reader can make sense of ends the opening with its text.
    }
  }
  return 0;
}
