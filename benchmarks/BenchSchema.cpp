// SPDX-License-Identifier: GPL-3.0-or-later
#include "BenchSchema.h"

#include <filesystem>
#include <fstream>
#include <utility>
#include <vector>

namespace velra::bench {

namespace {

using Fields = std::vector<std::pair<std::string, std::string>>;  // name and type

std::string sequence(const Fields& fields) {
  std::string text = "<xsd:sequence>\n";
  for (const auto& [name, type] : fields) {
    text += "<xsd:element name=\"" + name + "\" type=\"" + type +
            "\"><xsd:annotation><xsd:documentation>About " + name +
            ".</xsd:documentation></xsd:annotation></xsd:element>\n";
  }
  return text + "</xsd:sequence>";
}

Fields description() {
  Fields fields;
  for (int i = 1; i <= 20; ++i) fields.emplace_back("Text" + std::to_string(i), "xsd:string");
  fields.insert(fields.end(), {{"Persons", "SetOfStrings"},
                               {"Year", "xsd:integer"},
                               {"Shown", "xsd:date"},
                               {"Checked", "xsd:boolean"},
                               {"Level", "xsd:float"},
                               {"Colour", "ColourType"}});
  return fields;
}

std::string classOf(const std::string& name, Fields own) {
  for (auto& field : description()) own.push_back(std::move(field));
  return "<xsd:element name=\"" + name + "\"><xsd:complexType>" + sequence(own) +
         "</xsd:complexType></xsd:element>\n";
}

Fields expression(const std::string& kind) {
  return {{"Title", "xsd:string"},         {kind + "GUID", "xsd:string"},
          {"VersionGUID", "xsd:string"},   {"Time", "ChunkType"},
          {"PartOf" + kind, "xsd:string"}, {"FollowedBy" + kind, "xsd:string"}};
}

Fields with(Fields fields, const Fields& more) {
  fields.insert(fields.end(), more.begin(), more.end());
  return fields;
}

}  // namespace

std::string makeSchema(const std::string& folder) {
  std::filesystem::create_directories(folder);
  std::string path = folder + "/bench.xsd";
  std::ofstream(path)
      << "<xsd:schema xmlns:xsd=\"http://www.w3.org/2001/XMLSchema\">\n"
      << classOf("AVDocument", {{"Title", "xsd:string"},
                                {"AVDocGUID", "xsd:string"},
                                {"Synopsis", "xsd:string"},
                                {"Themes", "xsd:string"},
                                {"Subthemes", "xsd:string"},
                                {"ThematicKeywords", "SetOfStrings"},
                                {"ExpressedBy", "SetOfGUIDs"}})
      << classOf("Version", {{"VersionTitle", "xsd:string"},
                             {"VersionGUID", "xsd:string"},
                             {"Duration", "ChunkType"},
                             {"ManifestedBy", "SetOfGUIDs"}})
      << classOf(
             "Media",
             {{"Format", "xsd:string"}, {"MediaGUID", "xsd:string"}, {"AvailableAs", "SetOfGUIDs"}})
      << classOf("Storage", {{"Collocation", "xsd:string"}, {"StorageGUID", "xsd:string"}})
      << classOf("Video",
                 with(expression("Video"), {{"Keyframe", "ChunkType"}, {"FrameRate", "xsd:float"}}))
      << classOf("Audio", expression("Audio"))
      << classOf("Transcript",
                 with(expression("Transcript"), {{"TranscriptWordList", "SetOfWords"}}))
      << "<xsd:simpleType name=\"ColourType\"><xsd:restriction base=\"xsd:string\">"
         "<xsd:enumeration value=\"black and white\"/><xsd:enumeration value=\"colour\"/>"
         "</xsd:restriction></xsd:simpleType>\n</xsd:schema>\n";
  return path;
}

}  // namespace velra::bench
