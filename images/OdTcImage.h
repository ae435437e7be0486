// OdTcImage: one size of an item's picture: a file next to the catalog, or a
// picture of the host's button resource.
#pragma once

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
extern const OdString kProgramBtnRes;     // "%ProgramBtnRes%"
extern const OdString kAcadBtnResource;   // "acadbtn.xmx"
bool isImageResourceMarker(const OdString& src);

class OdTcImage : public OdTcPersist
{
  ODRX_DECLARE_MEMBERS(OdTcImage);

public:
  virtual void setSizeClass(int sizeClass) = 0;
  virtual void setSource(const OdString& src, const OdString& resource) = 0;
  virtual int getSizeClass() const = 0;
  virtual int getFormat() const = 0;
  virtual OdString src() const = 0;
  virtual OdString resource() const = 0;
  virtual int cx() const = 0;
  virtual int cy() const = 0;
  // The same picture at another size class.
  virtual OdSmartPtr<OdTcImage> cloneAtSize(int sizeClass) const = 0;
  virtual void writeAttributes(OdTcFiler* filer) = 0;
  virtual bool readAttribute(const OdString& name, const OdVariant& value) = 0;
};
using OdTcImagePtr = OdSmartPtr<OdTcImage>;

class OdTcImageImpl : public OdTcPersistImpl<OdTcImage>
{
public:
  static OdTcImagePtr createNew(int sizeClass = 3, const OdString& src = OdString(),
                                const OdString& resource = OdString());

  OdString tagName() const override { return "Image"; }
  void writeBody(OdTcFiler* filer) override { writeAttributes(filer); }
  bool setValue(const OdString& name, const OdVariant& value) override { return readAttribute(name, value); }
  void copyFrom(const OdRxObject* source) override;

  void setSizeClass(int sizeClass) override;
  void setSource(const OdString& src, const OdString& resource) override;
  int getSizeClass() const override { return m_sizeClass; }
  int getFormat() const override { return m_format; }
  OdString src() const override { return m_src; }
  OdString resource() const override { return m_resource; }
  int cx() const override { return m_cx; }
  int cy() const override { return m_cy; }
  OdTcImagePtr cloneAtSize(int sizeClass) const override;
  void writeAttributes(OdTcFiler* filer) override;
  bool readAttribute(const OdString& name, const OdVariant& value) override;

private:
  int m_sizeClass = 3;
  int m_format = 6; // pictures this module makes are PNG
  int m_cx = 32;
  int m_cy = 32;
  OdString m_resource;
  OdString m_src;
};

} // namespace tc
