// What the items of the tools menu do.
#pragma once

#include "host/designintf/environment.h"

namespace qel {

void ActivateScreenSaver(vcl::TEnvironment& environment);
/// The two of the form in front; raise EInvalidOperation when none is open.
void ShowNonVisualComponents(vcl::TEnvironment& environment);
void RepairComponentNames(vcl::TEnvironment& environment);
void ExploreIniFile(vcl::TEnvironment& environment);
void ViewClipboard(vcl::TEnvironment& environment);
void ViewAsciiTable(vcl::TEnvironment& environment);
void ShowToolsAbout(vcl::TEnvironment& environment);

}  // namespace qel
