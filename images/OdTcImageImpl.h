// OdTcImageImpl: one size of an item's picture: a file next to the catalog,
// or a picture of the host's button resource. Also the size classes and
// the names that mean "the host's button resource".
#pragma once

#include "model/OdTcImage.h"
#include "model/OdTcPersistImpl.h"

namespace tc {

// The size classes: 1, 2, 3, 4 for 16, 24, 32 and 64 pixels.
int imageSizeOfClass(int sizeClass);
// The file name suffix of a size class ("16", "32", "64"); class 2 borrows
// the suffix of the class above it.
OdString imageSuffixOfClass(int sizeClass);
// The class of a width: 16, 24, 32, 64; any other width counts as 32.
int imageClassOfSize(int size);

// The two texts of "src" that mean "the host's button resource".
extern const OdString kProgramBtnRes;   // "%ProgramBtnRes%"
extern const OdString kAcadBtnResource; // "acadbtn.xmx"
bool isImageResourceMarker(const OdString& src);

class OdTcImageImpl : public OdTcPersistImpl<OdTcImage>
{
public:
  static OdTcImagePtr createNew(int sizeClass = 3, const OdString& src = OdString(),
                                const OdString& resource = OdString());
  // The creation function bound to OdTcImage's class description.
  static OdRxObjectPtr pseudoConstructor();

  OdString tagName() const override { return "Image"; }
  void writeBody(OdTcFiler* filer) override;
  bool setValue(const OdString& name, const OdVariant& value) override;
  void copyFrom(const OdRxObject* source) override;

  void setSizeClass(int sizeClass) override;
  void setSource(const OdString& src, const OdString& resource) override;
  int getSizeClass() const override { return m_sizeClass; }
  int getFormat() const override { return m_format; }
  OdString src() const override;
  OdString resource() const override { return m_resource; }
  int cx() const override { return m_cx; }
  int cy() const override { return m_cy; }
  OdTcImagePtr cloneAtSize(int sizeClass) const override;

private:
  int m_sizeClass = 3;
  int m_format = 6; // pictures this module makes are PNG
  int m_cx = 32;
  int m_cy = 32;
  OdString m_resource;
  // As the file has it, "\" and all, so that a save writes it back as read.
  OdString m_src;
};

} // namespace tc
