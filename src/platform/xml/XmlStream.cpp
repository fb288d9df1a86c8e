// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/xml/XmlStream.h"

#include <libxml/xmlwriter.h>

#include <new>
#include <utility>

#include "base/Text.h"

namespace velra {

namespace {

struct FreeStream {
  void operator()(xmlTextWriter* writer) const { xmlFreeTextWriter(writer); }
  void operator()(xmlBuffer* buffer) const { xmlBufferFree(buffer); }
};

std::string withXmlCharacters(const std::string& text) {
  const bool encoded = isUtf8(text);
  std::string kept;
  for (const char character : text) {
    const auto byte = static_cast<unsigned char>(character);
    const bool holds = byte >= 0x20 || byte == '\t' || byte == '\n' || byte == '\r';
    if (holds) kept += byte < 0x80 || encoded ? character : '?';
  }
  // The two that are no characters.
  return replaceAll(replaceAll(std::move(kept), "\xEF\xBF\xBE", ""), "\xEF\xBF\xBF", "");
}

const xmlChar* streamed(const std::string& text) {
  return reinterpret_cast<const xmlChar*>(text.c_str());
}

}  // namespace

struct XmlStream::Output {
  std::unique_ptr<xmlBuffer, FreeStream> buffer{xmlBufferCreate()};
  std::unique_ptr<xmlTextWriter, FreeStream> writer{xmlNewTextWriterMemory(buffer.get(), 0)};
};

XmlStream::XmlStream() : output_(std::make_unique<Output>()) {
  if (!output_->writer) throw std::bad_alloc();
  xmlTextWriterSetIndent(output_->writer.get(), 1);
  xmlTextWriterSetIndentString(output_->writer.get(), streamed("  "));
  xmlTextWriterStartDocument(output_->writer.get(), nullptr, "UTF-8", nullptr);
}

XmlStream::~XmlStream() = default;

void XmlStream::open(const std::string& name, const XmlAttributes& attributes) {
  xmlTextWriterStartElement(output_->writer.get(), streamed(name));
  for (const auto& [attribute, value] : attributes) {
    xmlTextWriterWriteAttribute(output_->writer.get(), streamed(attribute),
                                streamed(withXmlCharacters(value)));
  }
}

void XmlStream::close() {
  xmlTextWriterEndElement(output_->writer.get());
}

void XmlStream::element(const std::string& name, const std::string& text,
                        const XmlAttributes& attributes) {
  open(name, attributes);
  xmlTextWriterWriteString(output_->writer.get(), streamed(withXmlCharacters(text)));
  close();
}

std::string XmlStream::take() {
  xmlTextWriterEndDocument(output_->writer.get());
  xmlTextWriterFlush(output_->writer.get());
  return reinterpret_cast<const char*>(xmlBufferContent(output_->buffer.get()));
}

}  // namespace velra
