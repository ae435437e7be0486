// hostUiPaletteSet: the host's dockable pane for a module's window. It docks
// on any side of the main window or floats, has a title and a close button,
// and tells when the user closed it with that button.
#pragma once

#include "sdk/kernel/OdString.h"

#include <QDockWidget>
#include <QPointer>

class hostUiPaletteSet : public QDockWidget
{
  Q_OBJECT

public:
  // Window styles and docking sides, with the values the host's windows use.
  static constexpr unsigned kStyleChild = 0x40000000;
  static constexpr unsigned kStyleVisible = 0x10000000;
  static constexpr unsigned kAlignLeft = 0x1000;
  static constexpr unsigned kAlignTop = 0x2000;
  static constexpr unsigned kAlignRight = 0x4000;
  static constexpr unsigned kAlignBottom = 0x8000;
  static constexpr unsigned kAlignAny = 0xF000;

  hostUiPaletteSet();
  ~hostUiPaletteSet() override;

  // Makes the pane a child of `parent`. A main window takes it into its
  // right dock area; `rect`, when not empty, is where it floats. With
  // kStyleVisible it shows at once. `id` names the pane for the main
  // window's saved layout. False when there is no parent or OnCreate
  // refuses; the pane then stays hidden.
  bool Create(const OdString& title, unsigned style, const QRect& rect, QWidget* parent, unsigned id);
  bool IsCreated() const { return m_created; }

  // The sides it may dock on (kAlign... bits); none leaves it floating only.
  void EnableDocking(unsigned alignment);

  void ShowPane(bool show);
  bool IsPaneVisible() const;
  void SetContent(QWidget* content);
  QWidget* Content() const { return widget(); }

  // The window that gets control back after the pane's own steps: the one
  // set here, else the parent.
  void SetOwner(QWidget* owner) { m_owner = owner; }
  QWidget* GetOwner() const;

signals:
  // The user closed the pane with its close button (hiding it otherwise
  // says nothing).
  void paneClosedByUser();

protected:
  // The window exists now; a subclass builds its children here. False makes
  // Create fail.
  virtual bool OnCreate() { return true; }
  // The close button was pressed; the pane hides after this.
  virtual void OnPressCloseButton() {}
  // The client area took a new size.
  virtual void OnSize(int width, int height) {}

  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

private:
  bool m_created = false;
  QPointer<QWidget> m_owner;
};
