// TLinkedImages: the list of pictures that a control shows, and its news.
#pragma once

#include "vcl/graphics/imagelist.h"

namespace vcl {

/// A control's reference to a list of pictures.
struct TLinkedImages {
  TImageList* List = nullptr;
  /// Hears of the list's changes.
  TChangeLink Link;

  /// Null for none. The user hears when the list is freed, by its Notification. False when it is
  /// the list already.
  bool Take(TImageList* images, TComponent& user) {
    if (images == List) return false;
    if (List) List->UnRegisterChanges(&Link);
    List = images;
    if (!images) return true;
    images->RegisterChanges(&Link);
    images->FreeNotification(&user);
    return true;
  }
};

}  // namespace vcl
