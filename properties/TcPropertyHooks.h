// What the layers above the properties hook into them: the making of the
// inspector's rows (the control layer lives above), and the notice that a
// property of a tool was changed by its editor.
#pragma once

class IRkEditableProperty;

namespace tc {

class OdTcProperty;

// Gives a new counted row for the property, or null when the property has
// no editor.
using TcEditableRowFactory = IRkEditableProperty* (*)(OdTcProperty* property);
// Null removes the factory; rows are then not made.
void tcSetEditableRowFactory(TcEditableRowFactory factory);
IRkEditableProperty* tcMakeEditableRow(OdTcProperty* property);

// Told after an editor changed a property's value.
using TcPropertyChangedHook = void (*)(OdTcProperty* property);
void tcSetPropertyChangedHook(TcPropertyChangedHook hook);
void tcNotifyPropertyChanged(OdTcProperty* property);

} // namespace tc
