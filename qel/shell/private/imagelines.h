// TImageLines: lines of a list with an image each, in a list box or a combo box.
#pragma once

#include <string>
#include <vector>

#include "vcl/rtl/win32.h"
// It needs what stands above.
#include <commctrl.h>

#include "vcl/rtl/systemmacros.h"
#include "vcl/stdctrls/linelook.h"

namespace qel {

/// A line of such a list.
struct TImageLine {
  std::string Text;
  int Image = 0;  ///< In the list of images.
  int Level = 0;  ///< How far it is indented.
};

/// The look of lines with an image before the text, and lines further in than others. All images
/// are known before anything is painted.
class TImageLines : public vcl::TLineLook {
 public:
  /// For the list that the look is given to.
  explicit TImageLines(vcl::TCustomListControl& list) : FList(list) {}

  /// Puts the lines in place of those that are there; none is selected then.
  void SetLines(const std::vector<TImageLine>& lines);
  void Draw(vcl::TCustomListControl& list, int index, const vcl::TRect& rect,
            vcl::TOwnerDrawState state) override;

 protected:
  vcl::TCustomListControl& List() const { return FList; }
  int PixelsPerInch() const;
  /// The list of images. Here: the system's small ones.
  virtual HIMAGELIST Images() const;

 private:
  vcl::TCustomListControl& FList;
};

}  // namespace qel
