// TIcon: a picture for windows, the task bar and buttons, of one or several sizes.
#pragma once

#include <string>
#include <vector>

#include "vcl/graphics/graphic.h"
#include "vcl/graphics/handles.h"

namespace vcl {

/// An icon. It keeps the whole file that it was read from, and shows the image in it that fits the
/// wanted size best.
class VCL_API TIcon : public TGraphic {
 public:
  TIcon() = default;
  ~TIcon() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  /// Copies another icon; null makes it empty.
  void Assign(const TPersistent* source) override;

  bool Empty() const override { return !FHandle && FFile.empty(); }
  int Width() const override { return Size().cx; }
  int Height() const override { return Size().cy; }
  TSize Size() const;
  /// Chooses the image of an icon read from a file; the system's size of large icons unless set.
  /// Does nothing for an icon that came as a handle.
  void SetSize(int width, int height);

  /// The icon's handle, which stays its own; null when empty. Raises EInvalidGraphic for a file
  /// whose image the system refuses.
  HICON Handle() const;
  /// Takes over an icon handle; null makes it empty.
  void SetHandle(HICON icon);
  /// Gives the handle away and leaves the icon empty.
  HICON ReleaseHandle();

  void Draw(TCanvas* canvas, const TRect& rect) override;
  /// Read and write files of the format ICO.
  void LoadFromStream(TStream& stream) override;
  void SaveToStream(TStream& stream) const override;
  /// The module's ICON of that name, in the system's size of large icons. Raises EResNotFound.
  void LoadFromResourceName(HINSTANCE instance, const std::string& name);

 private:
  TSize Wanted() const;

  std::vector<unsigned char> FFile;  ///< What it was read from; empty when it came as a handle.
  TSize FWanted;
  mutable TOwnedIcon FHandle;
};

}  // namespace vcl
