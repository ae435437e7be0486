// Prompts of the host's commands.
#include "app/core/HostPrompts.h"

#include "app/core/HostApp.h"
#include "app/core/HostCommandLine.h"
#include "app/core/HostDocumentManager.h"
#include "app/core/HostInputParser.h"
#include "app/core/HostOutput.h"

#include "sdk/db/OdDbBlockTableRecord.h"
#include "sdk/db/OdDbEntity.h"

#include <cmath>

using namespace HostInputParser;

HostPrompts::HostPrompts(HostApp& app) : m_app(app) {}

OdDbDatabase* HostPrompts::database() const
{
  HostDocumentImpl* document = m_app.documents().current();
  return document ? document->database() : nullptr;
}

OdGePoint3d HostPrompts::lastPoint() const
{
  HostDocumentImpl* document = m_app.documents().current();
  return document ? document->lastPoint() : OdGePoint3d();
}

void HostPrompts::setLastPoint(const OdGePoint3d& point)
{
  if (HostDocumentImpl* document = m_app.documents().current())
    document->setLastPoint(point);
}

HostPrompts::Status HostPrompts::ask(HostPrompt::Kind kind, const HostPromptOptions& options,
                                     const OdString& defaultText, const Interpreter& interpret)
{
  HostPrompt prompt;
  prompt.kind = kind;
  prompt.message = composePrompt(options.message, options.keywords, options.useDefault ? defaultText : OdString());
  prompt.keywords = options.keywords;
  prompt.hasBasePoint = options.useBasePoint;
  prompt.basePoint = options.basePoint;
  m_keyword = OdString();
  for (;;) {
    const HostInput input = m_app.commandLine().read(prompt);
    if (input.kind == HostInput::kCancel)
      return kCancel;
    if (input.kind == HostInput::kText) {
      OdString text = input.text;
      text.trimLeft();
      text.trimRight();
      if (text.isEmpty()) {
        if (options.useDefault)
          return kOk;
        if (options.allowNone)
          return kNone;
        // A prompt without a default asks again, as it would after a wrong
        // answer, but without a message: Enter is no mistake.
        continue;
      }
    }
    const Verdict verdict = interpret(input);
    if (verdict.retry.isEmpty())
      return verdict.status;
    if (input.kind == HostInput::kText && !options.keywords.empty()) {
      const OdString keyword = matchKeyword(input.text, options.keywords);
      if (!keyword.isEmpty()) {
        m_keyword = keyword;
        return kKeyword;
      }
    }
    m_app.output().printLine(verdict.retry);
  }
}

HostPrompts::Status HostPrompts::getPoint(const HostPromptOptions& options, OdGePoint3d& value)
{
  const OdString wrong = options.keywords.empty() ? "Invalid point." : "Invalid point or option keyword.";
  const Status status = ask(HostPrompt::kPoint, options, formatPoint(value), [&](const HostInput& in) -> Verdict {
    if (in.kind == HostInput::kPoint) {
      value = in.point;
      return {};
    }
    if (in.kind != HostInput::kText)
      return {kOk, wrong};
    const std::optional<OdGePoint3d> p = parsePoint(in.text, lastPoint());
    if (!p)
      return {kOk, wrong};
    value = *p;
    return {};
  });
  if (status == kOk)
    setLastPoint(value);
  return status;
}

HostPrompts::Status HostPrompts::getDistance(const HostPromptOptions& options, double& value)
{
  auto check = [&](double d) -> Verdict {
    if (d == 0.0 && !options.allowZero)
      return {kOk, "Requires a nonzero value."};
    if (d < 0.0 && !options.allowNegative)
      return {kOk, "Requires a positive value."};
    value = d;
    return {};
  };
  return ask(HostPrompt::kDistance, options, formatReal(value), [&](const HostInput& in) -> Verdict {
    const OdString wrong = "Requires a distance, a second point, or an option keyword.";
    if (in.kind == HostInput::kPoint)
      return options.useBasePoint ? check(in.point.distanceTo(options.basePoint)) : Verdict{kOk, wrong};
    if (in.kind != HostInput::kText)
      return {kOk, wrong};
    if (const std::optional<double> d = parseReal(in.text))
      return check(*d);
    if (options.useBasePoint && looksLikePoint(in.text))
      if (const std::optional<OdGePoint3d> p = parsePoint(in.text, lastPoint()))
        return check(p->distanceTo(options.basePoint));
    return {kOk, wrong};
  });
}

HostPrompts::Status HostPrompts::getAngle(const HostPromptOptions& options, double& value)
{
  auto fromBase = [&](const OdGePoint3d& p) -> Verdict {
    const OdGeVector3d v = p - options.basePoint;
    if (std::hypot(v.x, v.y) == 0.0)
      return {kOk, "The point is the base point itself: it gives no angle."};
    value = std::atan2(v.y, v.x);
    return {};
  };
  return ask(HostPrompt::kAngle, options, formatAngle(value), [&](const HostInput& in) -> Verdict {
    const OdString wrong = "Requires an angle in degrees, a second point, or an option keyword.";
    if (in.kind == HostInput::kPoint)
      return options.useBasePoint ? fromBase(in.point) : Verdict{kOk, wrong};
    if (in.kind != HostInput::kText)
      return {kOk, wrong};
    if (const std::optional<double> a = parseAngleDegrees(in.text)) {
      value = *a;
      return {};
    }
    if (options.useBasePoint && looksLikePoint(in.text))
      if (const std::optional<OdGePoint3d> p = parsePoint(in.text, lastPoint()))
        return fromBase(*p);
    return {kOk, wrong};
  });
}

HostPrompts::Status HostPrompts::getReal(const HostPromptOptions& options, double& value)
{
  return ask(HostPrompt::kReal, options, formatReal(value), [&](const HostInput& in) -> Verdict {
    const std::optional<double> d = in.kind == HostInput::kText ? parseReal(in.text) : std::nullopt;
    if (!d)
      return {kOk, "Requires a number."};
    if (*d == 0.0 && !options.allowZero)
      return {kOk, "Requires a nonzero value."};
    if (*d < 0.0 && !options.allowNegative)
      return {kOk, "Requires a positive value."};
    value = *d;
    return {};
  });
}

HostPrompts::Status HostPrompts::getInteger(const HostPromptOptions& options, int& value)
{
  return ask(HostPrompt::kInteger, options, OdString::formatted("%d", value), [&](const HostInput& in) -> Verdict {
    const std::optional<int> i = in.kind == HostInput::kText ? parseInteger(in.text) : std::nullopt;
    if (!i)
      return {kOk, "Requires an integer value."};
    if (*i == 0 && !options.allowZero)
      return {kOk, "Requires a nonzero value."};
    if (*i < 0 && !options.allowNegative)
      return {kOk, "Requires a positive value."};
    value = *i;
    return {};
  });
}

HostPrompts::Status HostPrompts::readText(HostPrompt::Kind kind, const HostPromptOptions& options, OdString& value)
{
  HostPrompt prompt;
  prompt.kind = kind;
  prompt.message = composePrompt(options.message, {}, options.useDefault ? value : OdString());
  const HostInput input = m_app.commandLine().read(prompt);
  if (input.kind == HostInput::kCancel)
    return kCancel;
  OdString text = input.text;
  if (kind == HostPrompt::kString && text.getLength() >= 2 && text.getAt(0) == u'"' &&
      text.getAt(text.getLength() - 1) == u'"')
    text = text.mid(1, text.getLength() - 2);
  if (input.text.isEmpty()) {
    if (options.useDefault)
      return kOk;
    if (options.allowNone)
      return kNone;
  }
  value = text;
  return kOk;
}

HostPrompts::Status HostPrompts::getText(const HostPromptOptions& options, OdString& value)
{
  return readText(HostPrompt::kText, options, value);
}

HostPrompts::Status HostPrompts::getWord(const HostPromptOptions& options, OdString& value)
{
  return readText(HostPrompt::kString, options, value);
}

OdDbObjectId HostPrompts::entityByHandle(const OdString& text, OdString& error) const
{
  OdDbDatabase* db = database();
  const OdDbHandle handle(text);
  if (!db) {
    error = "No document is open.";
    return OdDbObjectId();
  }
  if (handle.isNull()) {
    error = OdString::formatted("\"%s\" is no handle: select an object by its handle, in hexadecimal.", text);
    return OdDbObjectId();
  }
  const OdDbObjectId id = db->getOdDbObjectId(handle);
  if (id.isNull() || !id.isValid()) {
    error = OdString::formatted("The drawing has no object with the handle %s.", text);
    return OdDbObjectId();
  }
  return id;
}

// Only what the user sees can be chosen: entities of model space or of a
// paper space, not erased; not those inside block definitions.
OdString HostPrompts::checkEntity(const OdDbObjectId& id, const HostPromptOptions& options) const
{
  OdDbEntityPtr entity = OdDbEntity::cast(id.openObject());
  if (entity.isNull())
    return OdString::formatted("The object %s is no drawing entity, or it was erased.", id.getHandle().ascii());
  OdDbBlockTableRecordPtr owner = OdDbBlockTableRecord::cast(entity->ownerId().openObject());
  if (owner.isNull() || !owner->isLayout())
    return OdString::formatted("The object %s lies inside a block or another object; select one of the drawing itself.",
                               id.getHandle().ascii());
  return options.entityCheck ? options.entityCheck(id) : OdString();
}

HostPrompts::Status HostPrompts::getEntity(const HostPromptOptions& options, OdDbObjectId& value)
{
  return ask(HostPrompt::kEntity, options, value.getHandle().ascii(), [&](const HostInput& in) -> Verdict {
    OdDbObjectId id = in.entity;
    if (in.kind == HostInput::kText) {
      OdString error;
      id = entityByHandle(in.text, error);
      if (id.isNull())
        return {kOk, error};
    } else if (in.kind != HostInput::kEntity) {
      return {kOk, "Select an object."};
    }
    const OdString refused = checkEntity(id, options);
    if (!refused.isEmpty())
      return {kOk, refused};
    value = id;
    return {};
  });
}

HostPrompts::Status HostPrompts::getEntityOrPoint(const HostPromptOptions& options, OdDbObjectId& entity,
                                                  OdGePoint3d& point)
{
  const Status status =
      ask(HostPrompt::kEntityOrPoint, options, OdString(), [&](const HostInput& in) -> Verdict {
        if (in.kind == HostInput::kPoint) {
          point = in.point;
          return {kPoint, OdString()};
        }
        OdDbObjectId id = in.entity;
        if (in.kind == HostInput::kText) {
          if (looksLikePoint(in.text)) {
            const std::optional<OdGePoint3d> p = parsePoint(in.text, lastPoint());
            if (!p)
              return {kOk, "Invalid point."};
            point = *p;
            return {kPoint, OdString()};
          }
          OdString error;
          id = entityByHandle(in.text, error);
          if (id.isNull())
            return {kOk, error};
        }
        const OdString refused = checkEntity(id, options);
        if (!refused.isEmpty())
          return {kOk, refused};
        entity = id;
        return {};
      });
  if (status == kPoint)
    setLastPoint(point);
  return status;
}
