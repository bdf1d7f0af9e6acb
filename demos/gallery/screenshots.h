// Pictures of the gallery's pages, as PNG files.
#pragma once

#include <string>
#include <vector>

#include "demos/gallery/galleryform.h"

namespace gallery {

/// Shows each page in turn and saves what the screen shows of it, named after its tab (a space as a
/// hyphen), in the folder, which is made when it is missing. Returns the names of the files. Raises
/// EInOutError when the folder cannot be made, and what SavePng raises.
std::vector<std::string> SaveScreenshots(TGalleryForm& form, const std::string& folder);

}  // namespace gallery
