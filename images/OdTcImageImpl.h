// OdTcImageImpl: one size of an item's picture: a file next to the catalog,
// or a picture of the host's button resource. Also the size classes and
// the names that mean "the host's button resource".
#pragma once

#include "model/OdTcImage.h"
#include "model/OdTcPersistImpl.h"

#include <QImage>

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

// A source in the palette's "Images" folder that no other picture has, of
// the form block previews take when their own name is taken.
OdString uniqueBlockImageSource();

// What button pictures are drawn over.
constexpr QRgb kImageBackground = 0xffc0c0c0;

class OdTcImageImpl : public OdTcPersistImpl<OdTcImage>
{
public:
  static OdTcImagePtr createNew(int sizeClass = 3, const OdString& src = OdString(),
                                const OdString& resource = OdString());
  // The creation function bound to OdTcImage's class description.
  static OdRxObjectPtr pseudoConstructor();

  OdString tagName() const override { return "Image"; }
  // Reads the attributes, then looks for the source's file.
  bool readAttributes(OdTcFiler* filer) override;
  void writeBody(OdTcFiler* filer) override { writeAttributes(filer); }
  bool setValue(const OdString& name, const OdVariant& value) override { return readAttribute(name, value); }
  // The plain clone: a source file gets a name of its own, so that two
  // items never share one file; the picture comes along.
  void copyFrom(const OdRxObject* source) override;

  void setIcon(const QImage& icon) override { m_icon = icon; }
  void setSizeClass(int sizeClass) override;
  void setSource(const OdString& src, const OdString& resource) override;
  void releasePictures() override;
  int getSizeClass() const override { return m_sizeClass; }
  int getFormat() const override { return m_format; }
  QImage getBitmap() override;
  QImage getIcon() override;
  bool saveAs(const OdString& path, int format) override;
  bool save(const OdString& path) override;
  bool draw(QPainter* device, int x, int y, int width, int height) override;
  OdTcImagePtr cloneAtSize(int sizeClass) const override;
  // Writes "cx", "cy", "src", "resource"; a picture that has no file yet is
  // written beside the palette, and the pictures held in memory are let go.
  void writeAttributes(OdTcFiler* filer) override;
  bool readAttribute(const OdString& name, const OdVariant& value) override;
  bool loadFile() override;
  OdString src() const override;
  OdString resource() const override { return m_resource; }
  OdString file() override;
  int cx() const override { return m_cx; }
  int cy() const override { return m_cy; }

  // Deletes the picture's file through the host, when it lies in its
  // palette's folder: what the list's removal with files does for each
  // image. A picture of the button resource, or one whose icon is held,
  // keeps its file.
  void deleteFile();
  // Whether a picture or an icon is held in memory.
  bool holdsPicture() const { return !m_bitmap.isNull() || !m_icon.isNull(); }

private:
  // The file the image is kept in: its palette's, else its catalog's.
  OdString ownerFile();
  // Where the source lies beside the owner's file, and that folder; empty
  // when the source would lead out of it.
  OdString pathBesideOwner(OdString& folder);
  // Where a write puts the picture: beside the owner, or, for an export,
  // in the folder named after the export file.
  OdString writeTarget(OdString& folder, bool& exporting);
  // Looks for the source's file, as a read does.
  void resolveFile();
  // Puts the picture on disk where a write of the owner expects it.
  void ensurePictureFile();
  // The bitmap size of a button picture: cx by cy, or the class's size for
  // sizes no picture can have.
  int width() const;
  int height() const;

  int m_sizeClass = 3;
  int m_format = 6; // pictures this module makes are PNG
  int m_cx = 32;
  int m_cy = 32;
  OdString m_resource;
  // As the file has it, "\" and all, so that a save writes it back as read.
  OdString m_src;
  OdString m_file;
  // Loaded at first use and let go after a write. QImage shares its pixels
  // between copies, as the handles of the pictures were shared.
  QImage m_icon;
  QImage m_bitmap;
};

} // namespace tc
