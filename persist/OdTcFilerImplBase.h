// OdTcFilerImplBase: the part of the filers that both file kinds share: the
// document, the element cursor, the stack of objects and the writers.
#pragma once

#include "model/OdTcFiler.h"
#include "model/OdTcPersist.h"

#include <tinyxml.h>

#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tc {

// The text a written value takes, with the type code of the host's
// variants beside it (not written to files).
struct OdTcFormattedValue
{
  OdString text;
  int typeCode = 0;
};

class OdTcFilerImplBase : public OdTcFiler
{
public:
  OdTcFilerImplBase();

  bool openCatalog(OdStreamBuf* stream, OdTcPersist* root, bool write) override { return false; }
  bool openPalette(OdStreamBuf* stream, OdTcPersist* root, bool write) override { return false; }
  void push(OdTcPersist* object) override;
  int pop(bool advance) override;
  bool readNext(OdTcValueMap& values) override;
  bool readAttributes(OdTcValueMap& values) override;
  OdTcPersistPtr readObject() override;
  void writeObject(OdTcPersist* object) override;
  void writeValues(const OdTcValueMap& values) override {}
  void writeAttribute(const OdString& name, const OdVariant& value) override;
  void writeAttributeElement(const OdString& tag, const OdString& attribute, const OdVariant& value) override;
  void writeAttributesElement(const OdString& tag, const OdTcValueMap& values) override;
  void writeTextElement(const OdString& tag, const OdVariant& value, bool cdata) override;
  void flush() override;
  bool isOpenFlag() const override { return m_isOpen; }
  OdTcPersist* top() const override;
  bool next() override;
  bool atEnd() const override { return m_currentElement == nullptr; }

  // How a value is written: the catalog filer prints 32-bit numbers signed,
  // the palette filer unsigned except for "mRGB".
  virtual OdTcFormattedValue formatValue(const OdVariant& value, bool mrgbAttribute) const;

  const TiXmlDocument& document() const { return m_document; }
  // Why the file was not read whole: the refusal of a file nested deeper
  // than any catalog could be, or the fault at which parsing stopped. Empty
  // when it parsed whole.
  const OdString& readProblem() const { return m_readProblem; }
  // True when the file was refused before parsing: nothing of it was read.
  bool isRefused() const { return m_refused; }

  // Deeper than this no catalog or palette file of any program goes; a
  // file that does would overflow the stack of the parser.
  static constexpr int kMaxElementDepth = 256;
  // Nor is any larger than this; a file that is would take the memory of
  // the host, or its time, for nothing.
  static constexpr std::uint64_t kMaxFileSize = std::uint64_t(256) << 20;

protected:
  // The element name used to look up the tag table.
  virtual OdString tagOf(const TiXmlElement* element) const;
  virtual bool isSkipped(const OdString& tag) const { return false; }
  virtual void attachObject(OdTcPersist* object) = 0;
  // What readNext does with an element without attributes and with empty
  // text: the catalog filer stops reading the parent's children there.
  virtual bool emptyElementEndsReading() const = 0;

  // What both kinds of opening share. Writing: the root becomes the
  // document's element. Reading: the whole stream is parsed as UTF-8; false
  // when the file is refused, and then nothing is read.
  bool beginOpen(OdStreamBuf* stream, OdTcPersist* root, bool write);
  const TiXmlElement* findTopElement(const char* name) const;
  void linkElement(TiXmlElement* element);
  // A text of the file being read, made once per file: the many objects of a
  // palette then share one copy of each name, value and repeated text.
  OdString sharedText(const char* utf8) const;

  TiXmlDocument m_document;
  TiXmlElement* m_parentElement = nullptr;
  TiXmlElement* m_currentElement = nullptr;
  std::deque<OdTcPersist*> m_objects; // not owned: the objects being read
  bool m_writing = false;
  bool m_isOpen = false;
  OdStreamBufPtr m_stream;
  OdString m_dataTag;
  std::vector<OdString> m_skipTags;
  OdTcPersistPtr m_root;
  OdString m_readProblem;
  bool m_refused = false;

private:
  struct TextHash
  {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>()(text); }
  };

  void parseStream(OdStreamBuf* stream);

  mutable std::unordered_map<std::string, OdString, TextHash, std::equal_to<>> m_texts;
};

OdString textFromUtf8(const char* text);

} // namespace tc
