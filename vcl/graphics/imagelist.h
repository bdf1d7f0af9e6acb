// TImageList: pictures of one size, kept together for trees, lists, menus and buttons.
#pragma once

#include <map>
#include <memory>
#include <vector>

#include "vcl/graphics/canvas.h"
#include "vcl/rtl/component.h"
#include "vcl/rtl/systemtypes.h"

namespace vcl {

class TBitmap;
class TGraphic;
class TIcon;
class TStream;

class TImageList;

/// Tells a user of a list of pictures that they have changed (`TImageList::RegisterChanges`).
class VCL_API TChangeLink {
 public:
  TChangeLink() = default;
  ~TChangeLink();
  TChangeLink(const TChangeLink&) = delete;
  TChangeLink& operator=(const TChangeLink&) = delete;
  /// The list that it listens to; null for none, also when the list has been freed.
  TImageList* Sender() const { return FSender; }
  /// Gets the list. Its handle may be another one.
  TNotifyEvent OnChange;

 private:
  friend class TImageList;
  TImageList* FSender = nullptr;
};

/// A list of pictures. Indexes run from 0.
class VCL_API TImageList : public TComponent {
 public:
  /// Pictures of 16 by 16 pixels unless set.
  explicit TImageList(TComponent* owner);
  TImageList(TComponent* owner, int width, int height);
  ~TImageList() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  /// Copies another list's size and pictures; null makes it empty.
  void Assign(const TPersistent* source) override;

  /// The common-controls image list, which stays this list's own. Raises EOutOfResources.
  HIMAGELIST Handle() const;
  bool HandleAllocated() const { return FHandle != nullptr; }
  /// The width of the pictures, in pixels; a change empties the list.
  int Width() const { return FWidth; }
  /// The height of the pictures, in pixels; a change empties the list.
  int Height() const { return FHeight; }
  /// Change the size and empty the list. Raise EInvalidOperation for less than 1 or more than
  /// 32767.
  void SetWidth(int width) { SetSize(width, FHeight); }
  void SetHeight(int height) { SetSize(FWidth, height); }
  void SetSize(int width, int height);
  int Count() const;
  TImageList* Larger() const { return FLarger; }
  /// The same pictures at a larger size, which those for more dots per inch are made of; it may
  /// have a larger one in its turn. Null for none. Raises EInvalidOperation for a list that this
  /// one is the larger one of.
  void SetLarger(TImageList* larger);
  /// The pictures at the size for so many dots per inch: this list where it has that size, else
  /// one that belongs to it until its next change, with each picture made of the next larger one.
  /// Raises EArgumentOutOfRangeException for less than 1.
  TImageList* ForPPI(int pixelsPerInch);
  TColor BkColor() const { return FBkColor; }
  /// What see-through parts are filled with; clNone leaves them see-through.
  void SetBkColor(TColor color);

  /// Appends as many pictures as stand side by side in the bitmap, which stays as it was, and
  /// returns the first one's index. Raise EInvalidOperation for an empty bitmap, one that is lower
  /// than the list or narrower than one picture. What the mask (null for none) has white is
  /// see-through.
  int Add(TBitmap* image, TBitmap* mask);
  /// The bitmap's pixels of the colour are see-through.
  int AddMasked(TBitmap* image, TColor maskColor);
  int AddIcon(TIcon* icon);
  /// Appends a picture of any kind with what it covers in part, and returns its index. One of the
  /// list's height and a multiple of its width gives as many pictures; any other is made as large
  /// as fits, in the middle. A bitmap's pixels in the colour of its lower left one are see-through.
  /// Raises EInvalidOperation for an empty picture; the list then stays as it was.
  int AddGraphic(const TGraphic& graphic);
  /// Raises EArgumentOutOfRangeException outside the list.
  void Delete(int index);
  void Clear();
  /// Puts a picture at another place; those between move up. Raises EArgumentOutOfRangeException
  /// for places outside the list.
  void Move(int from, int to);

  /// Draws one picture; not enabled, its dark parts embossed. An index outside draws nothing.
  void Draw(TCanvas* canvas, int x, int y, int index, bool enabled = true);
  /// Draws one picture on a new bitmap of its size, on a background of that colour.
  void GetBitmap(int index, TBitmap* image, TColor background = clWhite) const;
  void GetIcon(int index, TIcon* icon) const;

  /// The link hears of every change, before OnChange; it leaves the list that it listened to.
  void RegisterChanges(TChangeLink* link);
  void UnRegisterChanges(TChangeLink* link);

  /// The pictures have changed.
  TNotifyEvent OnChange;

 protected:
  /// Keeps the pictures in form files, as the bytes of the property "Bitmap".
  void DefineProperties(TFiler& filer) override;
  void Notification(TComponent* component, TOperation operation) override;
  virtual void Changed();

 private:
  void ReadData(TStream& stream);
  void WriteData(TStream& stream) const;
  static constexpr int MostPixels = 32767;
  void CheckIndex(int index) const;
  void ReplaceIcon(int index, const TIcon& icon);
  void CheckStrip(const TBitmap* image) const;
  int Added(int index);
  void DrawDisabled(TCanvas* canvas, int x, int y, int index);
  void Replace(HIMAGELIST handle, int width, int height);
  const TImageList& SourceFor(int index, int width) const;
  void AddScaled(const TImageList& from, int index);

  mutable HIMAGELIST FHandle = nullptr;
  std::vector<TChangeLink*> FLinks;
  TImageList* FLarger = nullptr;
  TChangeLink FLargerLink;
  std::map<int, std::unique_ptr<TImageList>> FScaled;  // By dots per inch, until the next change.
  int FWidth = 16;
  int FHeight = 16;
  TColor FBkColor = clNone;
};

}  // namespace vcl
