// The registrations as this folder's units share them.
#pragma once

#include <vector>

#include "vcl/designintf/componenteditor.h"
#include "vcl/designintf/environment.h"
#include "vcl/designintf/propertyeditor.h"
#include "vcl/designintf/registration.h"

namespace vcl::detail {

std::vector<TPaletteEntry>& Palette();
std::vector<const TClass*>& NoIcons();
std::vector<TActionEntry>& Actions();
std::vector<TPropertyEditorEntry>& PropertyEditorEntries();
std::vector<TComponentEditorEntry>& ComponentEditorEntries();
std::vector<TExpertClass>& Experts();

/// How many steps lie between the class and its ancestor; -1 when it is none.
int DistanceTo(const TClass& aClass, const TClass& ancestor);
/// The editor that every property of that type falls back to.
const TPropertyEditorClass& StandardEditor(const TClass& aClass, const TPropInfo& property);

}  // namespace vcl::detail
