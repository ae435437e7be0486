// The functions of the host's hatch pattern library "verdanicmd1", as a
// module finds them: dlopen of "libverdanicmd1.so" by name, then dlsym of
// the names below. A host that links the library calls them directly. The
// library may be missing from a host: a module then goes without.
#pragma once

#include "sdk/kernel/OdArray.h"
#include "sdk/kernel/OdString.h"

class QImage;

inline constexpr const char* kVerdaniCmd1Name = "verdanicmd1";
inline constexpr const char* kVerdaniCmd1File = "libverdanicmd1.so";

inline constexpr const char* kHostCreatePatternImageName = "hostCreatePatternImage";
inline constexpr const char* kHostCreatePatternImageExName = "hostCreatePatternImageEx";
inline constexpr const char* kHostGetHatchPatternsName = "hostGetHatchPatterns";
inline constexpr const char* kHostGetCustomPatternFileNameName = "hostGetCustomPatternFileName";
inline constexpr const char* kHostSetHatchPatternDialogName = "hostSetHatchPatternDialog";

// Hatch types, as the hatch tool counts them.
enum HostHatchType
{
  kHostHatchUserDefined = 0,
  kHostHatchStandard = 1,
  kHostHatchCustom = 2
};

extern "C" {
// A picture of the pattern `name` into `bitmap`: `size` by `size` pixels
// (16, 24, 32 or 64 for the size classes of tool pictures), the pattern's
// lines black on white. The pattern is looked up ignoring case in the
// host's default file "verdaniiso.pat", then in the custom pattern file of
// the settings, then in a file "NAME.pat" in the pattern folders. "SOLID"
// gives the solid fill (a black square); "_USER" or the empty name the
// plain lines of a user-defined hatch. False, with `bitmap` null, for an
// unknown pattern, a size outside 1 to 4096, or a pattern file that cannot
// be read (which is told on the command line).
using HostCreatePatternImageFn = bool (*)(const OdString& name, int size, QImage& bitmap);
// The same for a pattern of `file`: a full path, or a file name looked up in
// the pattern folders. An empty `file` searches as hostCreatePatternImage.
using HostCreatePatternImageExFn = bool (*)(const OdString& name, const OdString& file, int size, QImage& bitmap);
// The pattern choice for a hatch of `type` (HostHatchType). On entry `file`
// may name the file to choose from; otherwise a custom hatch offers the
// custom pattern file of the settings and a standard one the default file.
// On a choice: `file` is the full path of the file, `list` the names of all
// its patterns in file order, `name` the chosen one as the file spells it;
// true. False when the user chose nothing, for a user-defined hatch (which
// has no pattern to choose) and when the file cannot be read (told on the
// command line); the arguments are then left as they were.
// A host with a dialog installed (hostSetHatchPatternDialog) shows it;
// otherwise the patterns are listed on the command line of the current
// document and the name is read from it (an empty input or a cancel is no
// choice).
using HostGetHatchPatternsFn = bool (*)(int type, OdString& file, OdArray<OdString>& list, OdString& name);
// The custom pattern file of the host's settings ("Hatch/CustomPatternFile"
// of the configuration), as a full path when the file is found, else as
// the settings write it. False, with `file` empty, when none is set.
using HostGetCustomPatternFileNameFn = bool (*)(OdString& file);

// A dialog of a desktop host for the pattern choice: `file` as for
// hostGetHatchPatterns on entry, the chosen file on return; `name` the
// choice. True on a choice.
using HostHatchPatternDialogFn = bool (*)(int type, OdString& file, OdString& name);
// Installs the dialog (null puts the command line back). The desktop host
// calls it once its main window exists.
using HostSetHatchPatternDialogFn = void (*)(HostHatchPatternDialogFn dialog);

bool hostCreatePatternImage(const OdString& name, int size, QImage& bitmap);
bool hostCreatePatternImageEx(const OdString& name, const OdString& file, int size, QImage& bitmap);
bool hostGetHatchPatterns(int type, OdString& file, OdArray<OdString>& list, OdString& name);
bool hostGetCustomPatternFileName(OdString& file);
void hostSetHatchPatternDialog(HostHatchPatternDialogFn dialog);
}
