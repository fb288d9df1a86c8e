#include "schema/InstanceDocument.h"

#include "base/Paths.h"
#include "platform/XmlWriter.h"

namespace velra {

InstanceDocument InstanceDocument::create(const std::string& rootName) {
  return InstanceDocument(newShell(rootName, {}));
}

void InstanceDocument::setSchemaPath(const std::string& schemaPath) {
  // https://www.w3.org/TR/xmlschema-1/#xsi_schemaLocation
  shell_ = withRootAttributes(shell_, {{"xmlns:xsi", "http://www.w3.org/2001/XMLSchema-instance"},
                                       {"xsi:noNamespaceSchemaLocation", strFileName(schemaPath)}});
}

}  // namespace velra
