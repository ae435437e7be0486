// Typed prompts of the host's commands, on the command line of the current
// document: points, distances, angles, numbers, keywords, texts, objects of
// the drawing and polygons. Each prompt prints itself in the usual form
// ("Specify radius or [Diameter] <10>: "), asks again after a wrong
// answer, and ends in one of the statuses below.
#pragma once

#include "app/core/HostPrompt.h"

#include <functional>
#include <vector>

class HostApp;
class OdDbDatabase;

struct HostPromptOptions
{
  OdString message;               // "Specify next point": the rest is added
  std::vector<OdString> keywords; // "Close", "Undo"; capitals are the shortcut
  bool allowNone = false;         // Enter without a default gives kNone
  bool useDefault = false;        // Enter takes the value handed in
  bool useBasePoint = false;      // distances and angles may be a point seen from it
  OdGePoint3d basePoint;
  bool allowZero = true;     // distances, reals and integers
  bool allowNegative = true; // likewise
  // For objects: a reason to refuse one (empty to take it).
  std::function<OdString(const OdDbObjectId&)> entityCheck;
};

class HostPrompts
{
public:
  enum Status
  {
    kOk,      // a value, or the default taken with Enter
    kNone,    // Enter where that is allowed without a default
    kKeyword, // one of the options; keyword() tells which
    kCancel,  // "^C" or the end of input; the command should end
    kPoint    // getEntityOrPoint: a point instead of an object
  };

  explicit HostPrompts(HostApp& app);

  // The value handed in is the default when `useDefault` is set.
  Status getPoint(const HostPromptOptions& options, OdGePoint3d& value);
  Status getDistance(const HostPromptOptions& options, double& value);
  // Radians; typed in degrees.
  Status getAngle(const HostPromptOptions& options, double& value);
  Status getReal(const HostPromptOptions& options, double& value);
  Status getInteger(const HostPromptOptions& options, int& value);
  // A line of text, blanks included.
  Status getText(const HostPromptOptions& options, OdString& value);
  // A word: a blank ends it, except inside double quotes (which are taken
  // off), as names are typed.
  Status getWord(const HostPromptOptions& options, OdString& value);
  // An entity of the current drawing's model or paper space: its handle
  // typed in hex, or picked in a desktop host.
  Status getEntity(const HostPromptOptions& options, OdDbObjectId& value);
  // An entity as above, or a point (kPoint) typed or clicked.
  Status getEntityOrPoint(const HostPromptOptions& options, OdDbObjectId& entity, OdGePoint3d& point);

  const OdString& keyword() const { return m_keyword; }
  // The drawing the prompts work on; null without a document.
  OdDbDatabase* database() const;

private:
  // What an interpreter makes of one answer: taken, or a reason to ask again.
  struct Verdict
  {
    Status status = kOk;
    OdString retry; // non-empty: print it and ask again
  };
  using Interpreter = std::function<Verdict(const HostInput& input)>;
  Status readText(HostPrompt::Kind kind, const HostPromptOptions& options, OdString& value);
  Status ask(HostPrompt::Kind kind, const HostPromptOptions& options, const OdString& defaultText,
             const Interpreter& interpret);
  OdGePoint3d lastPoint() const;
  void setLastPoint(const OdGePoint3d& point);
  OdString checkEntity(const OdDbObjectId& id, const HostPromptOptions& options) const;
  OdDbObjectId entityByHandle(const OdString& text, OdString& error) const;

  HostApp& m_app;
  OdString m_keyword;
};
