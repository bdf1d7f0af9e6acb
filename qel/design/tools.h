// What the items of the tools menu do, each in a form of its own.
#pragma once

#include "vcl/designintf/environment.h"

namespace qel {

/// Starts the system's screen saver; the one without a form.
void ActivateScreenSaver(vcl::TEnvironment& environment);
/// Turns the text on the clipboard into comments, for a source to be pasted into.
void PasteComments(vcl::TEnvironment& environment);
/// Forgets the files that the designer remembers and that are gone.
void CleanProjectPaths(vcl::TEnvironment& environment);
void ExploreIniFile(vcl::TEnvironment& environment);
void ViewClipboard(vcl::TEnvironment& environment);
void ViewAsciiTable(vcl::TEnvironment& environment);
void ShowToolsAbout(vcl::TEnvironment& environment);

// What is about the form in front. All raise EInvalidOperation when none is open.

/// The designer of that form.
vcl::TDesigner& DesignerInFront(vcl::TEnvironment& environment);
/// Lists the components that stand on the form as icons; the icons can be hidden.
void ShowNonVisualComponents(vcl::TEnvironment& environment);
/// Replaces a text in the texts of the form's components.
void SearchAndReplace(vcl::TEnvironment& environment);
/// Gives new names to components that cannot be members of the form's C++ class.
void RepairComponentNames(vcl::TEnvironment& environment);
/// Shows the C++ source that defines the fields of one of the form's data sets.
void GenerateTableSource(vcl::TEnvironment& environment);

}  // namespace qel
