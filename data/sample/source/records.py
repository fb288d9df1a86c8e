"""Writes the records of the sample document in the form in which the program itself saves them."""

import hashlib
import pathlib
import xml.etree.ElementTree as tree
from xml.sax.saxutils import escape

import catalogue
import segments

XSD = "{http://www.w3.org/2001/XMLSchema}"
SCHEMA = pathlib.Path(__file__).resolve().parents[2] / "schema" / "velra.xsd"
HEAD = ('<?xml version="1.0" encoding="UTF-8"?>\n<%s xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance"'
        ' xsi:noNamespaceSchemaLocation="velra.xsd">')


class Schema:
  """The fields of each class with their types, in the order of the schema."""

  def __init__(self):
    self.root = tree.parse(SCHEMA).getroot()

  def named(self, name):
    return next(node for node in self.root if node.get("name") == name)

  def fields(self, className):
    return list(self.inside(self.named(className)))

  def inside(self, node):
    for extension in node.iter(XSD + "extension"):
      yield from self.inside(self.named(extension.get("base")))
    for sequence in node.iter(XSD + "sequence"):
      for field in sequence:
        yield field.get("name"), field.get("type")


def content(kind, value):
  """Attributes and inner text of a field's element."""
  if kind == "ChunkType":
    start, end, file = value
    return ' start="%d" end="%d" reasons="0"' % (start, end), escape(file)
  if kind == "SetOfStrings":
    return "", "".join("<StringItem>%s</StringItem>" % escape(item) for item in value)
  if kind == "SetOfGUIDs":
    return "", "".join("<GUID>%s</GUID>" % escape(item) for item in value)
  if kind == "SetOfWords":
    return "", "".join('<Word start="%d" end="%d">%s</Word>' % (start, end, escape(word))
                       for start, end, word in value)
  if kind == "xsd:boolean":
    return "", "true" if value else "false"
  return "", escape(str(value))


def serialise(schema, className, values):
  parts, left = [HEAD % className], dict(values)
  for name, kind in schema.fields(className):
    if name in left:
      attributes, text = content(kind, left.pop(name))
      parts.append("<%s%s>%s</%s>" % (name, attributes, text, name) if text else "<%s%s/>" % (name, attributes))
  if left:
    raise KeyError("%s has no field %s" % (className, ", ".join(left)))
  return "".join(parts) + "</%s>\n" % className


def addFileFacts(folder, values):
  """Size and checksum of the movie, which change whenever the movies are made anew."""
  data = (folder / values["Collocation"]).read_bytes()
  return {**values, "FileSize": len(data), "Checksum": "SHA-256 " + hashlib.sha256(data).hexdigest()}


def keyFrames():
  """Path and seconds of each segment's picture."""
  for _, values in segments.videos():
    if "Keyframe" in values:
      start, _, file = values["Keyframe"]
      yield file, start / 1000


def write(folder, words):
  """Writes every record under the folder; words are (start ms, end ms, text)."""
  schema = Schema()
  for path, className, values in [*catalogue.records(), *segments.records(words)]:
    if className == "Storage":
      values = addFileFacts(folder, values)
    (folder / path).write_text(serialise(schema, className, values), encoding="utf-8")
