// Atomic replacement of a file by rename.
#include "persist/TcSafeFile.h"

#include "sdk/kernel/OdRxSystemServices.h"

#include <QFile>
#include <QFileInfo>
#include <QUuid>

#include <cstdio>

namespace tc {

TcSafeFile::TcSafeFile(const OdString& target) : m_target(target)
{
  // A name of our own beside the target: the rename then stays inside one
  // file system, which is what makes it atomic.
  const QFileInfo info(target.qstring());
  m_temporary = OdString(info.absolutePath() + QStringLiteral("/.") + info.fileName() + QStringLiteral(".tmp-") +
                         QUuid::createUuid().toString(QUuid::Id128).left(8));
  m_stream = odrxSystemServices()->createFile(m_temporary, Oda::kFileWrite, Oda::kShareDenyReadWrite,
                                              Oda::kCreateNew);
}

TcSafeFile::~TcSafeFile()
{
  m_stream = nullptr;
  if (!m_committed)
    QFile::remove(m_temporary.qstring());
}

bool TcSafeFile::commit()
{
  // A write that failed in the file's buffer shows only here: never rename
  // a file that did not reach the disk whole.
  try {
    m_stream->flush();
  } catch (const OdError&) {
    m_stream = nullptr;
    return false;
  }
  m_stream = nullptr; // closes the file
  const QByteArray from = QFile::encodeName(m_temporary.qstring());
  const QByteArray to = QFile::encodeName(m_target.qstring());
  // A file that existed keeps its permissions.
  const QFileInfo old(m_target.qstring());
  if (old.exists())
    QFile::setPermissions(m_temporary.qstring(), old.permissions());
  if (std::rename(from.constData(), to.constData()) != 0)
    return false;
  m_committed = true;
  return true;
}

} // namespace tc
