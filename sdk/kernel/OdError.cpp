// OdError and its kinds.
#include "sdk/kernel/OdError.h"

#include "sdk/kernel/OdRxClass.h"

OdString OdError::defaultDescription(int code)
{
  switch (code) {
  case eOk: return "No error";
  case eNotImplemented: return "Not implemented";
  case eInvalidInput: return "Invalid input";
  case eNullPtr: return "Null pointer";
  case eNotThatKindOfClass: return "Not that kind of class";
  case eFileNotFound: return "File not found";
  case eFileAccessErr: return "File access error";
  case eFileInternalErr: return "File internal error";
  case eUnsupportedFormat: return "Unsupported file format";
  case eKeyNotFound: return "Key not found";
  case eNotRegistered: return "Class not registered";
  case eAlreadyRegistered: return "Class already registered";
  default: return OdString::formatted("Error %d", code);
  }
}

OdError::OdError(int code) : OdError(code, defaultDescription(code))
{
}

OdError::OdError(int code, const OdString& description)
    : m_code(code), m_description(description), m_what(description.toUtf8())
{
}

OdError::OdError(const OdString& description) : OdError(eInvalidInput, description)
{
}

namespace {
OdString className(const OdRxClass* c)
{
  return c ? c->name() : OdString("(unregistered)");
}
} // namespace

OdError_NotThatKindOfClass::OdError_NotThatKindOfClass(const OdRxClass* from, const OdRxClass* to)
    : OdError(eNotThatKindOfClass,
              OdString::formatted("Not that kind of class: %s is not a %s", className(from), className(to)))
{
}

OdError_NotThatKindOfClass::OdError_NotThatKindOfClass() : OdError(eNotThatKindOfClass)
{
}

OdError_FileException::OdError_FileException(int code, const OdString& fileName)
    : OdError(code, OdString::formatted("%s: %s", defaultDescription(code), fileName)), m_fileName(fileName)
{
}

OdError_FileException::OdError_FileException(int code, const OdString& fileName, const OdString& reason)
    : OdError(code, OdString::formatted("%s: %s: %s", defaultDescription(code), fileName, reason)),
      m_fileName(fileName), m_reason(reason)
{
}
