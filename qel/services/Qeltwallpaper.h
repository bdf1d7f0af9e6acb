// TQELWallPaper: the picture on the user's desktop.
#pragma once

#include <memory>
#include <string>

#include "qel/core/Qelactioncomponent.h"

namespace qel {

/// Where the picture lies on the desktop.
enum TQELWallPaperStyle {
  wpCenter,   ///< In the middle, as it is.
  wpTile,     ///< Again and again, from the top left.
  wpStretch,  ///< Over all of it, in any proportion.
  wpFit,      ///< As large as all of it is seen.
  wpFill      ///< As large as nothing of the desktop is.
};

/// Puts a picture on the user's desktop, for good, or until the component or the program ends.
class QEL_API TQELWallPaper : public TQELActionComponent {
 public:
  explicit TQELWallPaper(vcl::TComponent* owner);
  ~TQELWallPaper() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// The file with the desktop's picture, as the system has it; empty for none.
  std::string Current() const;
  /// Puts back what was there before the first Execute; false, with LastError, when nothing was
  /// changed or the system refuses.
  bool Restore();

  const std::string& Filename() const { return FFilename; }
  /// The picture's file; empty for none. Every system shows bitmaps; newer ones JPEG and PNG, too.
  void SetFilename(const std::string& fileName) { FFilename = fileName; }
  bool Preview() const { return FPreview; }
  /// True: Execute changes nothing for good, and the former picture is back when the component or
  /// the program ends, by a fault, too.
  void SetPreview(bool preview) { FPreview = preview; }
  TQELWallPaperStyle Style() const { return FStyle; }
  /// Where the picture lies.
  void SetStyle(TQELWallPaperStyle style);

 protected:
  bool DoExecute() override;
  std::string DesignText() const override;

 private:
  struct TFormer;
  std::string FFilename;
  bool FPreview = false;
  TQELWallPaperStyle FStyle = wpCenter;
  std::unique_ptr<TFormer> FFormer;
};

}  // namespace qel

template <>
inline constexpr vcl::TEnumText vcl::EnumText<qel::TQELWallPaperStyle>{
    "TQELWallPaperStyle", "wpCenter wpTile wpStretch wpFit wpFill"};
