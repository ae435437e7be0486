// A drawing made through the database's own operations, as a host makes
// one: written out, ezdxf reads every table, entity and value back.
#include "tests/sdk/dxf/DxfTestSupport.h"

#include "sdk/db/OdDbBlockReference.h"
#include "sdk/db/OdDbBlockTableRecord.h"
#include "sdk/db/OdDbCurves.h"
#include "sdk/db/OdDbDictionary.h"
#include "sdk/db/OdDbDimStyleTableRecord.h"
#include "sdk/db/OdDbHatch.h"
#include "sdk/db/OdDbLayerTableRecord.h"
#include "sdk/db/OdDbLinetypeTableRecord.h"
#include "sdk/db/OdDbPolyline.h"
#include "sdk/db/OdDbRasterImage.h"
#include "sdk/db/OdDbText.h"
#include "sdk/db/OdDbTextStyleTableRecord.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>

#include <cmath>
#include <gtest/gtest.h>

namespace {

template <class T>
OdSmartPtr<T> addRecord(OdDbDatabase* db, OdDbObjectId tableId, const char* name)
{
  OdSmartPtr<T> r = T::createObject();
  r->setName(name);
  OdDbSymbolTable::cast(tableId.openObject(OdDb::kForWrite))->add(r);
  return r;
}

OdDbDatabasePtr madeDrawing()
{
  OdDbDatabasePtr db = odDbCreateDatabase();
  auto style = addRecord<OdDbTextStyleTableRecord>(db, db->getTextStyleTableId(), "Romans");
  style->setFileName("romans.shx");
  style->setXScale(0.8);
  auto ttf = addRecord<OdDbTextStyleTableRecord>(db, db->getTextStyleTableId(), "Sans");
  ttf->setFileName("DejaVuSans.ttf");
  ttf->setFont("DejaVu Sans", true, true, 0, 34);
  auto lt = addRecord<OdDbLinetypeTableRecord>(db, db->getLinetypeTableId(), "FENCE");
  lt->setComments("Fence ---x---x---");
  lt->setNumDashes(3);
  lt->setPatternLength(1.5);
  lt->setDashLengthAt(0, 1.0);
  lt->setDashLengthAt(1, -0.25);
  lt->setTextAt(1, "x");
  lt->setShapeStyleAt(1, style->objectId());
  lt->setShapeScaleAt(1, 0.2);
  lt->setDashLengthAt(2, -0.25);
  auto layer = addRecord<OdDbLayerTableRecord>(db, db->getLayerTableId(), "Fences");
  OdCmColor orange;
  orange.setRGB(255, 128, 0);
  layer->setColor(orange);
  layer->setLinetypeObjectId(lt->objectId());
  layer->setLineWeight(OdDb::kLnWt030);
  layer->setIsPlottable(false);
  auto dim = addRecord<OdDbDimStyleTableRecord>(db, db->getDimStyleTableId(), "Made");
  dim->setDimasz(3.0);
  dim->setDimtxt(2.5);
  dim->setDimtxsty(style->objectId());
  dim->setDimblk("_Oblique");
  dim->setDimclrd(orange);
  dim->setDimfxlon(true);
  dim->setDimfxl(2.0);

  auto block = addRecord<OdDbBlockTableRecord>(db, db->getBlockTableId(), "POST");
  block->setOrigin(OdGePoint3d(0.5, 0.5, 0));
  block->setComments("A fence post");
  OdDbCirclePtr post = OdDbCircle::createObject();
  post->setRadius(0.5);
  post->setCenter(OdGePoint3d(0.5, 0.5, 0));
  block->appendOdDbEntity(post);
  OdDbAttributeDefinitionPtr def = OdDbAttributeDefinition::createObject();
  def->setTag("NO");
  def->setPrompt("Post number");
  def->setTextString("0");
  block->appendOdDbEntity(def);

  OdDbBlockTableRecordPtr ms = OdDbBlockTableRecord::cast(db->getModelSpaceId().openObject(OdDb::kForWrite));
  auto add = [&](OdDbEntity* e) {
    e->setDatabaseDefaults(db);
    return ms->appendOdDbEntity(e);
  };
  OdDbLinePtr line = OdDbLine::createObject();
  line->setEndPoint(OdGePoint3d(10, 0, 0));
  add(line);
  line->setLayer("Fences");
  OdDbArcPtr arc = OdDbArc::createObject();
  arc->setRadius(3);
  arc->setEndAngle(M_PI);
  add(arc);
  OdDbEllipsePtr ellipse = OdDbEllipse::createObject();
  ellipse->set(OdGePoint3d(5, 5, 0), OdGeVector3d::kZAxis, OdGeVector3d(2, 0, 0), 0.5);
  add(ellipse);
  OdDbSplinePtr spline = OdDbSpline::createObject();
  spline->setNurbsData(3, false, false, false, OdGePoint3dArray{{0, 0, 0}, {1, 2, 0}, {3, 1, 0}, {4, 4, 0}},
                       OdGeDoubleArray{0, 0, 0, 0, 1, 1, 1, 1}, OdGeDoubleArray());
  add(spline);
  OdDbSplinePtr fit = OdDbSpline::createObject();
  fit->setFitData(OdGePoint3dArray{{0, 0, 0}, {2, 1, 0}, {4, 0, 0}}, 3, 1e-10, OdGeVector3d(1, 0, 0), OdGeVector3d(1, 0, 0));
  add(fit);
  OdDbPolylinePtr pl = OdDbPolyline::createObject();
  pl->addVertexAt(0, OdGePoint2d(0, 0), 0.3);
  pl->addVertexAt(1, OdGePoint2d(5, 0));
  pl->addVertexAt(2, OdGePoint2d(5, 5));
  pl->setClosed(true);
  add(pl);
  OdDb2dPolylinePtr pl2 = OdDb2dPolyline::createObject();
  for (int i = 0; i < 3; ++i) {
    OdDb2dVertexPtr v = OdDb2dVertex::createObject();
    v->setPosition(OdGePoint3d(i, 2 * i, 0));
    pl2->appendVertex(v);
  }
  add(pl2);
  add(OdDbPoint::createObject());
  OdDbSolidPtr solid = OdDbSolid::createObject();
  solid->setPointAt(1, OdGePoint3d(1, 0, 0));
  solid->setPointAt(2, OdGePoint3d(0, 1, 0));
  add(solid);
  OdDbTextPtr text = OdDbText::createObject();
  text->setTextString("Zaun ÄÖÜ");
  text->setTextStyle(style->objectId());
  text->setHorizontalMode(1);
  text->setVerticalMode(2);
  text->setAlignmentPoint(OdGePoint3d(1, 1, 0));
  add(text);
  OdDbMTextPtr mtext = OdDbMText::createObject();
  mtext->setContents(OdString("Erste Zeile\\PZweite Zeile ") + OdString(QString(300, QChar(0x00E9))));
  mtext->setTextStyle(ttf->objectId());
  add(mtext);

  OdDbBlockReferencePtr ref = OdDbBlockReference::createObject();
  ref->setBlockTableRecord(block->objectId());
  ref->setPosition(OdGePoint3d(20, 0, 0));
  OdDbAttributePtr att = OdDbAttribute::createObject();
  att->setAttributeFromBlock(def, OdGePoint3d(20, 0, 0));
  att->setTextString("17");
  ref->appendAttribute(att);
  add(ref);

  OdDbHatchPtr hatch = OdDbHatch::createObject();
  hatch->setPattern(OdDbHatch::kUserDefined, "_USER");
  hatch->setPatternSpace(0.5);
  hatch->setPatternAngle(M_PI / 4);
  hatch->appendLoop(OdDbHatch::kExternal, OdGePoint2dArray{{0, 0}, {4, 0}, {4, 4}, {0, 4}}, OdGeDoubleArray());
  add(hatch);
  OdDbHatchPtr gradient = OdDbHatch::createObject();
  gradient->appendLoop(OdDbHatch::kExternal, OdGePoint2dArray{{10, 0}, {14, 0}, {14, 4}}, OdGeDoubleArray());
  gradient->setGradient(OdDbHatch::kPreDefinedGradient, "SPHERICAL");
  gradient->setGradientAngle(M_PI / 6);
  add(gradient);

  OdDbDictionaryPtr images = OdDbDictionary::cast(db->imageDictionaryId(true).openObject(OdDb::kForWrite));
  OdDbRasterImageDefPtr imageDef = OdDbRasterImageDef::createObject();
  imageDef->setSourceFileName("photos/site.png");
  imageDef->setImageSize(800, 600);
  images->setAt("site", imageDef);
  OdDbRasterImagePtr image = OdDbRasterImage::createObject();
  image->setImageDefId(imageDef->objectId());
  image->setOrientation(OdGePoint3d(0, 10, 0), OdGeVector3d(8, 0, 0), OdGeVector3d(0, 6, 0));
  add(image);
  return db;
}

} // namespace

TEST(MadeDrawing, ezdxfReadsWhatTheDatabaseMade)
{
  if (!DxfTest::haveEzdxf())
    GTEST_SKIP() << "ezdxf is not installed for /usr/bin/python3";
  OdDbDatabasePtr db = madeDrawing();
  const QString path = QDir(DxfTest::scratchFolder()).filePath("made.dxf");
  odDxfWriteFile(db, OdString(path));
  const QJsonObject s = QJsonDocument::fromJson(DxfTest::runHelper({"summary", path})).object();
  EXPECT_TRUE(s["audit_errors"].toArray().isEmpty()) << QJsonDocument(s["audit_errors"].toArray()).toJson().toStdString();
  EXPECT_EQ(s["version"].toString(), "AC1032");

  const QJsonObject fences = s["layers"].toObject()["Fences"].toObject();
  EXPECT_EQ(fences["true_color"].toInt(), 0xFF8000);
  EXPECT_EQ(fences["linetype"].toString(), "FENCE");
  EXPECT_EQ(fences["lineweight"].toInt(), 30);
  EXPECT_EQ(fences["plot"].toInt(), 0);
  const QJsonObject fence = s["linetypes"].toObject()["FENCE"].toObject();
  EXPECT_EQ(fence["texts"].toArray(), QJsonArray({"x"}));
  EXPECT_EQ(fence["dashes"].toArray().size(), 3);
  EXPECT_EQ(s["styles"].toObject()["Romans"].toObject()["width"].toDouble(), 0.8);
  const QJsonObject made = s["dimstyles"].toObject()["Made"].toObject();
  EXPECT_EQ(made["dimasz"].toDouble(), 3.0);
  EXPECT_EQ(made["dimtxsty"].toString(), "Romans");
  EXPECT_EQ(made["dimblk"].toString().toUpper(), "_OBLIQUE");
  EXPECT_EQ(made["dimfxl"].toDouble(), 2.0);
  const QJsonObject post = s["blocks"].toObject()["POST"].toObject();
  EXPECT_EQ(post["description"].toString(), "A fence post");
  EXPECT_EQ(post["types"].toArray(), QJsonArray({"ATTDEF", "CIRCLE"}));

  QStringList types;
  for (const QJsonValue& v : s["modelspace"].toArray()) {
    const QJsonObject e = v.toObject();
    types << e["type"].toString();
    if (e["type"] == "INSERT") {
      EXPECT_EQ(e["attribs"].toObject()["NO"].toString(), "17");
    }
    if (e["type"] == "LINE") {
      EXPECT_EQ(e["layer"].toString(), "Fences");
    }
    if (e["type"] == "TEXT") {
      EXPECT_EQ(e["text"].toString(), "Zaun ÄÖÜ");
    }
    if (e["type"] == "MTEXT") {
      EXPECT_EQ(e["text"].toString().size(), QString("Erste Zeile\\PZweite Zeile ").size() + 300);
    }
    if (e["type"] == "IMAGE") {
      EXPECT_EQ(e["imagedef"].toString(), "photos/site.png");
    }
    if (e["type"] == "HATCH" && e["gradient"].isObject()) {
      EXPECT_EQ(e["gradient"].toObject()["name"].toString(), "SPHERICAL");
      EXPECT_NEAR(e["gradient"].toObject()["rotation"].toDouble(), 30.0, 1e-6) << "ezdxf shows degrees";
    } else if (e["type"] == "HATCH") {
      EXPECT_EQ(e["pattern"].toString(), "_USER");
      EXPECT_EQ(e["loops"].toInt(), 1);
      EXPECT_NEAR(e["pattern_angle"].toDouble(), 45.0, 1e-6);
    }
  }
  EXPECT_EQ(types, QStringList({"LINE", "ARC", "ELLIPSE", "SPLINE", "SPLINE", "LWPOLYLINE", "POLYLINE", "POINT", "SOLID",
                                "TEXT", "MTEXT", "INSERT", "HATCH", "HATCH", "IMAGE"}));

  // And the database reads its own file back to the same text.
  const std::string first = odDxfWriteBuffer(db);
  EXPECT_TRUE(first == odDxfWriteBuffer(odDxfReadBuffer(first)));
}

// The header gives the current colour as an index only: a true colour goes
// out as its nearest index, which readers take, and stays true in memory.
TEST(MadeDrawing, trueCurrentColour_isWrittenAsItsIndex)
{
  OdDbDatabasePtr db = odDbCreateDatabase();
  OdCmColor teal;
  teal.setRGB(10, 120, 130);
  db->setCECOLOR(teal);
  const std::string text = odDxfWriteBuffer(db);
  const std::size_t at = text.find("$CECOLOR");
  ASSERT_NE(at, std::string::npos);
  const std::string variable = text.substr(at, text.find("\n  9\n", at) - at);
  EXPECT_EQ(variable, "$CECOLOR\n 62\n" + std::to_string(teal.colorIndex()));
  EXPECT_EQ(db->getCECOLOR(), teal);
  const OdCmColor read = odDxfReadBuffer(text)->getCECOLOR();
  EXPECT_EQ(read.colorIndex(), teal.colorIndex());
  EXPECT_FALSE(read.isByColor());
}
