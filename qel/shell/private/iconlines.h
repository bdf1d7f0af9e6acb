// TQELIconLines: lines of a file's icons, which a combo box or a list box shows.
#pragma once

#include <string>

#include "qel/shell/private/imagelines.h"
#include "vcl/graphics/handles.h"
#include "vcl/graphics/icon.h"

namespace qel {

inline void DestroyImages(HIMAGELIST images) { ::ImageList_Destroy(images); }

/// The icons of a file as lines. They are read from the file when it, their size or the dots per
/// inch change.
class TQELIconLines : public TImageLines {
 public:
  explicit TQELIconLines(vcl::TCustomListControl& list);

  const std::string& Filename() const { return FFilename; }
  void SetFilename(const std::string& fileName);
  int IconSize() const { return FIconSize; }
  void SetIconSize(int size);
  /// What waits for its line where there is none.
  int Index() const { return FIndex; }
  void SetIndex(int index);
  void TakeSelected() { FIndex = List().ItemIndex(); }
  const vcl::TIcon& Icon();
  /// Reads the file anew; nothing while the list is being read from a form file.
  void Fill();

 protected:
  HIMAGELIST Images() const override { return FImages.Get(); }

 private:
  using TImages = vcl::TOwned<HIMAGELIST, &DestroyImages>;
  int SizeInPixels() const;
  void Select();

  std::string FFilename;
  int FIconSize = 32;
  int FIndex = 0;
  TImages FImages;
  vcl::TIcon FIcon;
};

}  // namespace qel
