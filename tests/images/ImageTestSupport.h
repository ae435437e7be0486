// What the tests of pictures share: the classes of the catalog model, an
// item of a palette's tools with pictures, pictures held in memory, and a
// host that writes down what the module prints.
#pragma once

#include "tests/model/ModelClasses.h"

#include "images/OdTcImageImpl.h"
#include "model/OdTcCatalogItemImplBase.h"

#include <QImage>
#include <QString>

#include <string>

namespace tst {

// A palette's tool as far as pictures go: an item under "Tool" with its
// display record.
class TstTool : public tc::OdTcCatalogItemImplBase<tc::OdTcCatalogItem>
{
public:
  static tc::OdTcCatalogItemPtr create(const OdString& name);
  OdString tagName() const override { return "Tool"; }
};

// The model's classes, and "Tool" read as a TstTool.
void registerImageTestClasses();

// A picture held in memory under `src`, as a new tool's picture is before
// its palette is saved: the button picture of `command` at the class, drawn
// over the background colour.
tc::OdTcImagePtr pictureInMemory(int sizeClass, const OdString& src, const OdString& command = "CIRCLE");

// Whether two pictures have the same size and the same colour in every
// pixel.
bool samePixels(const QImage& a, const QImage& b);

// What the module printed on the host's command line since the last call.
std::string takePrinted();

// The folder of the third-party test files; empty when it is not there.
QString externalData();

} // namespace tst
