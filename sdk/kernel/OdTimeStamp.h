// OdTimeStamp: a moment, as a packed count of milliseconds since 1970.
#pragma once

#include "sdk/kernel/OdString.h"

#include <cstdint>

class OdTimeStamp
{
public:
  enum InitFlag { kInitZero, kInitLocalTime, kInitUniversalTime };

  OdTimeStamp() = default;
  explicit OdTimeStamp(InitFlag init);

  // Seconds since 1970 in universal time (what time() gives).
  void setPackedValue(std::int64_t seconds);
  std::int64_t packedValue() const;

  void getUniversalTime(OdTimeStamp& out) const;
  void getLocalTime(OdTimeStamp& out) const;
  void setToZero() { m_msecs = 0; m_local = false; }

  // The C library's text of the moment without the trailing new line,
  // for example "Sat Nov 21 04:38:00 2026".
  void ctime(OdString& out) const;
  OdString ctime() const;

  bool isLocal() const { return m_local; }
  std::int64_t milliseconds() const { return m_msecs; }

  friend bool operator==(const OdTimeStamp& a, const OdTimeStamp& b) { return a.m_msecs == b.m_msecs; }
  friend bool operator<(const OdTimeStamp& a, const OdTimeStamp& b) { return a.m_msecs < b.m_msecs; }

private:
  std::int64_t m_msecs = 0; // since 1970-01-01T00:00:00 in the frame below
  bool m_local = false;     // true when the value counts in local time
};
