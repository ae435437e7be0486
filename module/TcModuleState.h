// The module's state between initApp and uninitApp: everything the module
// holds, owned by one object, made in the order of the start and dropped
// in the order of the stop.
#pragma once

#include "module/OdTcPaletteManager.h"
#include "module/OdTcStateSaverImpl.h"
#include "module/OdTcToolBuffer.h"
#include "module/OdTcValueStorageImpl.h"
#include "module/TcClassTable.h"
#include "module/TcUiInterfaces.h"

#include "host/TcHost.h"
#include "persist/TcFileStore.h"
#include "tools/OdTcCommandConveyor.h"
#include "tools/OdTcConveyorImpl.h"
#include "tools/TcEditorReactor.h"
#include "tools/TcToolPipeline.h"

class OdRxModule;
class QWidget;

namespace tc {

class TcModuleState
{
public:
  // The start: the classes, the element names of the files and the file
  // store, the module-wide objects, the catalogs, the offer of tools for
  // completion. A failure undoes what was done and goes on to the caller.
  static void start();
  // The stop: throws OdError 255 when the module is not started (its first
  // class of the order of deletion is not registered). Otherwise releases
  // the objects, then deletes the class descriptions; nothing is saved.
  static void stop();
  // The state of the started module, or null.
  static TcModuleState* current();

  ~TcModuleState();

  OdTcValueStorageImpl* valueStorage() const { return m_valueStorage; }
  OdTcPaletteManager* paletteManager() const { return m_paletteManager; }
  TcEditorReactor* editorReactor() const { return m_editorReactor; }
  OdTcConveyorImpl* conveyor() const { return m_conveyor; }
  OdTcStateSaverImpl* stateSaver() const { return m_stateSaver; }
  OdTcToolBuffer* toolBuffer() const { return m_toolBuffer; }
  OdTcCommandConveyor* commandConveyor() const { return m_commandConveyor; }

  // The palette set window: null until first shown, and owned by the
  // docking frame, never freed here.
  ITcUiPaletteSet* paletteSet() const { return m_paletteSet; }
  void setPaletteSet(ITcUiPaletteSet* window) { m_paletteSet = window; }
  // What odtcToolPaletteVisible answers.
  bool paletteVisible() const { return m_paletteVisible; }
  void setPaletteVisible(bool visible) { m_paletteVisible = visible; }

  // Asks the palette set for one of its views; null without a window.
  template <class T>
  T* paletteSetView(int type) const
  {
    void* out = nullptr;
    if (m_paletteSet && m_paletteSet->queryInterface(type, &out))
      return static_cast<T*>(out);
    return nullptr;
  }

private:
  TcModuleState();
  // What the start made after the classes, dropped in the order of the
  // stop; what is null already is skipped.
  void releaseObjects();

  // The element names of the files and the store, installed while alive.
  struct FileLayer
  {
    FileLayer();
    ~FileLayer();
    TcFileStore store;
  };

  TcHostSession m_host;
  TcClassRegistration m_classes;
  FileLayer m_files;
  // The module-wide objects, in the order of their making.
  OdTcValueStorageImplPtr m_valueStorage;
  OdTcPaletteManagerPtr m_paletteManager;
  TcEditorReactorPtr m_editorReactor;
  bool m_watchesEditor = false;
  OdTcConveyorImplPtr m_conveyor;
  OdTcStateSaverImplPtr m_stateSaver;
  OdTcToolBufferPtr m_toolBuffer;
  OdTcCommandConveyorPtr m_commandConveyor;
  // The road of a click, over the editor reactor and the command conveyor.
  std::unique_ptr<TcToolPipeline> m_pipeline;
  bool m_offersTools = false;
  ITcUiPaletteSet* m_paletteSet = nullptr; // not owned
  bool m_paletteVisible = false;
};

// The module-wide objects of the started module; null when it is not.
OdTcValueStorageImpl* valueStorage();
OdTcPaletteManager* paletteManager();
OdTcStateSaverImpl* stateSaver();
// The started module's state; throws OdError, with a text for the user,
// when the module is not started.
TcModuleState& startedModule();

// What odrxCreateModuleObject hands out.
extern OdRxModule* moduleObject;
// Event numbers registered at load for "WM_TC_CUSTOMIZE" and
// "WM_TC_PALETTE_CLOSED".
extern int wmTcCustomize;
extern int wmTcPaletteClosed;

// Marker texts of the table record snapshots for another line type and a
// user arrow.
extern const OdString kOtherLinetypeMarker;
extern const OdString kUserArrowMarker;

// Makes the palette set as a child of `parent`; null on failure. The user
// interface installs the function when it is built into the module.
using TcPaletteSetCreator = ITcUiPaletteSet* (*)(QWidget* parent);
void setPaletteSetCreator(TcPaletteSetCreator creator);
TcPaletteSetCreator paletteSetCreator();

} // namespace tc
