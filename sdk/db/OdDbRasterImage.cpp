// Raster images and image definitions; file names resolved as on Linux.
#include "sdk/db/OdDbRasterImage.h"
#include "sdk/db/OdDbDatabase.h"

#include "sdk/kernel/OdRxClass.h"

#include <QDir>
#include <QFileInfo>

ODRX_DEFINE_MEMBERS(OdDbRasterImageDef, OdDbObject, ODRX_CREATE_IMPL(OdDbRasterImageDef, OdDbRasterImageDef))
ODRX_DEFINE_MEMBERS(OdDbRasterImage, OdDbEntity, ODRX_CREATE_IMPL(OdDbRasterImage, OdDbRasterImage))
ODRX_DEFINE_MEMBERS(OdDbRasterImageDefReactor, OdDbObject,
                    ODRX_CREATE_IMPL(OdDbRasterImageDefReactor, OdDbRasterImageDefReactor))

OdDbRasterImageDefReactor::OdDbRasterImageDefReactor()
{
  initData("IMAGEDEF_REACTOR", {odPair(100, kSub), odPair(90, "2")});
}

OdDbRasterImageDef::OdDbRasterImageDef()
{
  initData("IMAGEDEF", {odPair(100, kSub), odPair(90, "0"), odPair(1, ""), odPair(10, "1.0"), odPair(20, "1.0"),
                        odPair(11, "1.0"), odPair(21, "1.0"), odPair(280, "1"), odPair(281, "0")});
}

OdString OdDbRasterImageDef::activeFileName() const
{
  QString path = sourceFileName().qstring();
  path.replace(QChar('\\'), QChar('/'));
  if (path.isEmpty())
    return OdString();
  QFileInfo info(path);
  if (info.isAbsolute())
    return info.exists() ? OdString(path) : sourceFileName();
  OdDbDatabase* db = database();
  if (db && !db->getFilename().isEmpty()) {
    const QDir folder = QFileInfo(db->getFilename().qstring()).absoluteDir();
    const QString candidate = QDir::cleanPath(folder.filePath(path));
    if (QFileInfo::exists(candidate))
      return OdString(candidate);
    // Drawings often keep only the name: look beside the drawing too.
    const QString beside = folder.filePath(info.fileName());
    if (QFileInfo::exists(beside))
      return OdString(beside);
  }
  return OdString(path);
}

OdGeVector2d OdDbRasterImageDef::size() const
{
  const OdGePoint3d p = getPoint(kSub, 10);
  return OdGeVector2d(p.x, p.y);
}

void OdDbRasterImageDef::setImageSize(double w, double h)
{
  setDouble(kSub, 10, w);
  setDouble(kSub, 20, h);
}

OdGeVector2d OdDbRasterImageDef::resolutionMMPerPixel() const
{
  const OdGePoint3d p = getPoint(kSub, 11);
  return OdGeVector2d(p.x, p.y);
}

OdDbRasterImage::OdDbRasterImage()
{
  initData("IMAGE", {odPair(100, "AcDbEntity"), odPair(8, "0"), odPair(100, kSub), odPair(90, "0"), odPair(10, "0.0"),
                     odPair(20, "0.0"), odPair(30, "0.0"), odPair(11, "1.0"), odPair(21, "0.0"), odPair(31, "0.0"),
                     odPair(12, "0.0"), odPair(22, "1.0"), odPair(32, "0.0"), odPair(13, "1.0"), odPair(23, "1.0"),
                     odPair(340, "0"), odPair(70, "7"), odPair(280, "0"), odPair(281, "50"), odPair(282, "50"),
                     odPair(283, "0"), odPair(71, "1"), odPair(91, "2"), odPair(14, "-0.5"), odPair(24, "-0.5"),
                     odPair(14, "0.5"), odPair(24, "0.5")});
}

void OdDbRasterImage::setImageDefId(OdDbObjectId id)
{
  setId(kSub, 340, id);
  if (OdDbRasterImageDefPtr def = OdDbRasterImageDef::cast(id.openObject()); def.get()) {
    setDouble(kSub, 13, def->size().x);
    setDouble(kSub, 23, def->size().y);
  }
}

// Code 360 stands after the fade (283), before the clip boundary.
void OdDbRasterImage::setReactorId(OdDbObjectId id)
{
  if (findPair(kSub, 360) >= 0) {
    setId(kSub, 360, id);
    return;
  }
  assertWriteEnabled();
  const int fade = findPair(kSub, 283);
  const int at = fade >= 0 ? fade + 1 : ensureSection(kSub);
  m_pairs.insert(m_pairs.begin() + at, OdDbDxfPair{360, storeText(id.getHandle().text())});
}

void OdDbRasterImage::getOrientation(OdGePoint3d& origin, OdGeVector3d& u, OdGeVector3d& v) const
{
  const OdGeVector2d s = imageSize();
  origin = getPoint(kSub, 10);
  u = getVector(kSub, 11) * s.x;
  v = getVector(kSub, 12) * s.y;
}

void OdDbRasterImage::setOrientation(const OdGePoint3d& origin, const OdGeVector3d& u, const OdGeVector3d& v)
{
  OdGeVector2d s = imageSize();
  if (s.x <= 0 || s.y <= 0)
    s = OdGeVector2d(1, 1);
  setPoint(kSub, 10, origin);
  setVector(kSub, 11, u * (1.0 / s.x));
  setVector(kSub, 12, v * (1.0 / s.y));
}

OdGeVector2d OdDbRasterImage::imageSize() const
{
  const OdGePoint3d p = getPoint(kSub, 13);
  return OdGeVector2d(p.x, p.y);
}

OdGePoint2dArray OdDbRasterImage::clipBoundary() const
{
  OdGePoint2dArray out;
  auto r = sectionRange(kSub);
  for (int i = r.first; i + 1 < r.second; ++i)
    if (m_pairs[std::size_t(i)].code == 14 && m_pairs[std::size_t(i + 1)].code == 24)
      out.append(OdGePoint2d(OdDxf::toDouble(m_pairs[std::size_t(i)].value), OdDxf::toDouble(m_pairs[std::size_t(i + 1)].value)));
  return out;
}
