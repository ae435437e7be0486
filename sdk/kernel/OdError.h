// OdError: the exception of the SDK, carrying a result code and a text.
#pragma once

#include "sdk/kernel/OdString.h"

#include <exception>
#include <string>

class OdRxClass;

// Result codes used by this SDK. The numbers of the run-time class machinery
// are the ones callers test for.
enum OdResult : int
{
  eOk = 0,
  eNotImplemented = 2,
  eInvalidInput = 5,
  eNullPtr = 9,
  eNotThatKindOfClass = 38,
  eFileNotFound = 61,
  eFileAccessErr = 62,
  eFileInternalErr = 63,
  eUnsupportedFormat = 64,
  eKeyNotFound = 200,
  eNotRegistered = 255,     // no class description for the name, or a null one
  eAlreadyRegistered = 313  // a class name registered a second time
};

class OdError : public std::exception
{
public:
  explicit OdError(int code);
  OdError(int code, const OdString& description);
  explicit OdError(const OdString& description);

  int code() const { return m_code; }
  OdString description() const { return m_description; }
  const char* what() const noexcept override { return m_what.c_str(); }

  static OdString defaultDescription(int code);

private:
  int m_code;
  OdString m_description;
  std::string m_what;
};

// Thrown by a failed narrowing cast.
class OdError_NotThatKindOfClass : public OdError
{
public:
  OdError_NotThatKindOfClass(const OdRxClass* from, const OdRxClass* to);
  OdError_NotThatKindOfClass();
};

// Thrown by a failed open of a file or stream.
class OdError_FileException : public OdError
{
public:
  OdError_FileException(int code, const OdString& fileName);
  // With the system's reason ("No space left on device").
  OdError_FileException(int code, const OdString& fileName, const OdString& reason);
  OdString fileName() const { return m_fileName; }
  // The system's reason, when it was given.
  OdString reason() const { return m_reason; }

private:
  OdString m_fileName;
  OdString m_reason;
};
