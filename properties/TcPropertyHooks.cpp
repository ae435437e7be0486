// The hooks of the layers above.
#include "properties/TcPropertyHooks.h"

namespace tc {

namespace {
TcEditableRowFactory g_factory = nullptr;
TcPropertyChangedHook g_changed = nullptr;
} // namespace

void tcSetEditableRowFactory(TcEditableRowFactory factory)
{
  g_factory = factory;
}

IRkEditableProperty* tcMakeEditableRow(OdTcProperty* property)
{
  return g_factory && property ? g_factory(property) : nullptr;
}

void tcSetPropertyChangedHook(TcPropertyChangedHook hook)
{
  g_changed = hook;
}

void tcNotifyPropertyChanged(OdTcProperty* property)
{
  if (g_changed && property)
    g_changed(property);
}

} // namespace tc
