// The host's colour dialog: a colour by index from the 255 of the index
// table, ByLayer or ByBlock, or a true colour.
#pragma once

#include "hostsdk/ui/hostUiDialog.h"
#include "sdk/db/OdCmColor.h"

class QColorDialog;
class QLineEdit;
class QTabWidget;
class QPushButton;

class HostUiColorDialog : public hostUiDialog
{
  Q_OBJECT

public:
  explicit HostUiColorDialog(QWidget* parent = nullptr, bool allowByLayerByBlock = true);

  void setColor(const OdCmColor& color);
  const OdCmColor& color() const { return m_color; }

  // For tests and scripts: the parts the user works with.
  QTabWidget* tabs() const { return m_tabs; }
  QLineEdit* colorEdit() const { return m_edit; }
  QWidget* indexPalette() const { return m_palette; }
  QColorDialog* trueColorPicker() const { return m_picker; }

protected:
  void OnOK() override;

private:
  void choose(const OdCmColor& color);
  void takeEditedText();

  OdCmColor m_color;
  bool m_allowByLayerByBlock;
  QTabWidget* m_tabs = nullptr;
  QWidget* m_palette = nullptr;
  QColorDialog* m_picker = nullptr;
  QLineEdit* m_edit = nullptr;
  QWidget* m_preview = nullptr;
  bool m_updating = false;
};

// Lets the user choose a colour, starting from `color`. True with the new
// colour in `color`; false when cancelled. Without windows it asks on the
// command line; an empty answer keeps the colour it started with.
bool hostUiSelectColor(QWidget* parent, OdCmColor& color, bool allowByLayerByBlock = true);
