// OdTimeStamp: conversion between universal and local time, and its text.
#include "sdk/kernel/OdTimeStamp.h"

#include <QDateTime>
#include <QLocale>
#include <QTimeZone>

OdTimeStamp::OdTimeStamp(InitFlag init)
{
  if (init == kInitZero)
    return;
  const QDateTime now = QDateTime::currentDateTimeUtc();
  m_msecs = now.toMSecsSinceEpoch();
  if (init == kInitLocalTime) {
    m_msecs += qint64(now.toLocalTime().offsetFromUtc()) * 1000;
    m_local = true;
  }
}

void OdTimeStamp::setPackedValue(std::int64_t seconds)
{
  m_msecs = seconds * 1000;
  m_local = false;
}

std::int64_t OdTimeStamp::packedValue() const
{
  return m_msecs / 1000;
}

void OdTimeStamp::getUniversalTime(OdTimeStamp& out) const
{
  out = *this;
  if (m_local) {
    const QDateTime asLocal = QDateTime::fromMSecsSinceEpoch(m_msecs, Qt::UTC);
    QDateTime local(asLocal.date(), asLocal.time(), Qt::LocalTime);
    out.m_msecs = local.toMSecsSinceEpoch();
    out.m_local = false;
  }
}

void OdTimeStamp::getLocalTime(OdTimeStamp& out) const
{
  out = *this;
  if (!m_local) {
    const QDateTime utc = QDateTime::fromMSecsSinceEpoch(m_msecs, Qt::UTC);
    out.m_msecs = m_msecs + qint64(utc.toLocalTime().offsetFromUtc()) * 1000;
    out.m_local = true;
  }
}

void OdTimeStamp::ctime(OdString& out) const
{
  // The value is printed in its own frame, like asctime() of its broken-down
  // form, in the C locale whatever the user's language.
  const QDateTime t = QDateTime::fromMSecsSinceEpoch(m_msecs, Qt::UTC);
  const QLocale c = QLocale::c();
  out = OdString(c.toString(t, QStringLiteral("ddd MMM ")) + QString::number(t.date().day()).rightJustified(2, u' ') +
                 c.toString(t, QStringLiteral(" HH:mm:ss ")) + QString::number(t.date().year()));
}

OdString OdTimeStamp::ctime() const
{
  OdString s;
  ctime(s);
  return s;
}
