#include "support/SmallSchema.h"

namespace velra::test {

const std::string kSmallSchema = R"(<?xml version="1.0"?>
<xsd:schema xmlns:xsd="http://www.w3.org/2001/XMLSchema">
  <xsd:element name="AVDocument"><xsd:complexType><xsd:sequence>
    <xsd:element name="Title" type="xsd:string"/>
    <xsd:element name="AVDocGUID" type="xsd:string"/>
    <xsd:element name="Kind" type="KindOfWork"/>
    <xsd:element name="Premiere" type="xsd:date"/>
    <xsd:element name="Reels" type="xsd:integer"/>
    <xsd:element name="Length" type="xsd:float"/>
    <xsd:element name="Complete" type="xsd:boolean"/>
    <xsd:element name="Tags" type="SetOfStrings"/>
    <xsd:element name="Excerpt" type="ChunkType"/>
    <xsd:element name="Opening" type="SetOfWords"/>
    <xsd:element name="Legacy" type="NobodyKnows"/>
    <xsd:element name="ExpressedBy" type="SetOfGUIDs"/>
  </xsd:sequence></xsd:complexType></xsd:element>
  <xsd:element name="Version"><xsd:complexType><xsd:sequence>
    <xsd:element name="VersionTitle" type="xsd:string"/>
    <xsd:element name="VersionGUID" type="xsd:string"/>
    <xsd:element name="Duration" type="ChunkType"/>
    <xsd:element name="ManifestedBy" type="SetOfGUIDs"/>
  </xsd:sequence></xsd:complexType></xsd:element>
  <xsd:element name="Media"><xsd:complexType><xsd:sequence>
    <xsd:element name="Format" type="xsd:string"/>
    <xsd:element name="MediaGUID" type="xsd:string"/>
    <xsd:element name="AvailableAs" type="SetOfGUIDs"/>
  </xsd:sequence></xsd:complexType></xsd:element>
  <xsd:element name="Storage"><xsd:complexType><xsd:sequence>
    <xsd:element name="Collocation" type="xsd:string"/>
    <xsd:element name="StorageGUID" type="xsd:string"/>
  </xsd:sequence></xsd:complexType></xsd:element>
  <xsd:complexType name="Expression"><xsd:sequence>
    <xsd:element name="Title" type="xsd:string"/>
    <xsd:element name="VersionGUID" type="xsd:string"/>
    <xsd:element name="Time" type="ChunkType"/>
    <xsd:element name="ManifestedBy" type="SetOfGUIDs"/>
  </xsd:sequence></xsd:complexType>
  <xsd:element name="Video"><xsd:complexType><xsd:complexContent><xsd:extension base="Expression">
    <xsd:sequence>
      <xsd:element name="VideoGUID" type="xsd:string"/>
      <xsd:element name="PartOfVideo" type="xsd:string"/>
      <xsd:element name="FollowedByVideo" type="xsd:string"/>
      <xsd:element name="HasAudio" type="xsd:string"/>
      <xsd:element name="HasVideoTranscript" type="xsd:string"/>
      <xsd:element name="Keyframe" type="ChunkType"/>
      <xsd:element name="FrameRate" type="xsd:float"/>
    </xsd:sequence></xsd:extension></xsd:complexContent></xsd:complexType></xsd:element>
  <xsd:element name="Audio"><xsd:complexType><xsd:complexContent><xsd:extension base="Expression">
    <xsd:sequence>
      <xsd:element name="AudioGUID" type="xsd:string"/>
      <xsd:element name="PartOfAudio" type="xsd:string"/>
      <xsd:element name="FollowedByAudio" type="xsd:string"/>
      <xsd:element name="HasAudioTranscript" type="xsd:string"/>
    </xsd:sequence></xsd:extension></xsd:complexContent></xsd:complexType></xsd:element>
  <xsd:element name="Transcript"><xsd:complexType><xsd:complexContent>
    <xsd:extension base="Expression"><xsd:sequence>
      <xsd:element name="TranscriptGUID" type="xsd:string"/>
      <xsd:element name="PartOfTranscript" type="xsd:string"/>
      <xsd:element name="FollowedByTranscript" type="xsd:string"/>
      <xsd:element name="TranscriptWordList" type="SetOfWords"/>
    </xsd:sequence></xsd:extension></xsd:complexContent></xsd:complexType></xsd:element>
  <xsd:simpleType name="KindOfWork"><xsd:restriction base="xsd:string">
    <xsd:enumeration value="Documentary"/><xsd:enumeration value="Feature"/>
  </xsd:restriction></xsd:simpleType>
</xsd:schema>
)";

}  // namespace velra::test
