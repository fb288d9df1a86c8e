// SPDX-License-Identifier: GPL-3.0-or-later

// An object's file: read, written, and read again, which must give the same file as before.

#include "base/RunTimeError.h"
#include "fuzz/FuzzSession.h"
#include "platform/xml/XmlDocument.h"
#include "platform/xml/XmlWriter.h"
#include "schema/CloseList.h"
#include "schema/InstanceWriter.h"
#include "schema/SEColl.h"
#include "schema/SchemaFile.h"

namespace velra::fuzz {
namespace {

struct InstanceSession : FuzzSession {
  InstanceSession() {
    machine.write(ApplicationModule::kMachineSection, "XSDPath",
                  VELRA_SOURCE_DIR "/data/schema/velra.xsd");
  }
  SharedParts shared{app};

  /// The file that a save would make of the given one; "" when it is no object of that class.
  std::string saved(const std::string& bytes, const std::string& className) {
    XmlDocument parsed;
    if (!parsed.parse(bytes, folder / "input.xml")) return {};
    SEColl fields(app, shared);
    InstanceDocument document;
    std::shared_ptr<const SchemaFile> schema;
    if (!fields.strLoadParsed(document, parsed, schema, className).empty()) return {};
    XmlWriter writer(document.shell());
    WriteInstance({fields.begin(), fields.end()}, writer);
    return writer.bytes();
  }
};

void read(std::string_view bytes, const std::string& className) {
  static InstanceSession session;
  try {
    const std::string once = session.saved(std::string(bytes), className);
    if (!once.empty()) require(session.saved(once, className) == once);
  } catch (const RunTimeError&) {
    // A time that is no number is told of in a box that ends the opening.
  }
}

}  // namespace
}  // namespace velra::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  for (const char* name : {"AVDocument", "Video", "Transcript"}) {
    velra::fuzz::read(velra::fuzz::textOf(data, size), name);
  }
  return 0;
}
