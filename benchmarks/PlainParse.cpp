// SPDX-License-Identifier: GPL-3.0-or-later
#include "PlainParse.h"

#include <libxml/parser.h>

#include <filesystem>
#include <functional>
#include <memory>

#include "platform/files/Files.h"

namespace velra::bench {

namespace {

void forEachFile(const std::string& folder, const std::function<void(const std::string&)>& visit) {
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
    if (entry.path().extension() == ".xml") visit(entry.path());
  }
}

}  // namespace

void plainParse(const std::string& folder) {
  const std::unique_ptr<xmlParserCtxt, decltype(&xmlFreeParserCtxt)> context(xmlNewParserCtxt(),
                                                                             &xmlFreeParserCtxt);
  forEachFile(folder, [&](const std::string& path) {
    const FileBytes file = readFile(path);
    xmlDoc* document =
        xmlCtxtReadMemory(context.get(), file.bytes.data(), static_cast<int>(file.bytes.size()),
                          path.c_str(), nullptr, XML_PARSE_NONET | XML_PARSE_COMPACT);
    xmlFreeDoc(document);
  });
}

double plainBytes(const std::string& folder) {
  double bytes = 0;
  forEachFile(folder, [&](const std::string& path) {
    bytes += static_cast<double>(std::filesystem::file_size(path));
  });
  return bytes;
}

}  // namespace velra::bench
