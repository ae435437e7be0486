// A hatch pattern file (.pat): reading it and finding its patterns by name.
#pragma once

#include "hostsdk/patterns/PatPattern.h"

#include <QByteArray>

#include <vector>

class PatFile
{
public:
  // Reads the file. False when it cannot be read or a line is wrong; then
  // `error` says which file, which line and what is wrong with it, and the
  // object is left empty.
  bool load(const OdString& path, OdString* error = nullptr);
  // Reads the text of a file; `path` names it in messages.
  bool parse(const QByteArray& text, const OdString& path, OdString* error = nullptr);

  const OdString& path() const { return m_path; }
  // Every pattern in file order, duplicates included.
  const std::vector<PatPattern>& patterns() const { return m_patterns; }
  // The first pattern of that name, ignoring case; null when none.
  const PatPattern* find(const OdString& name) const;

private:
  OdString m_path;
  std::vector<PatPattern> m_patterns;
};
