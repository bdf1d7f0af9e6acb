// TCoolBar: bands of controls that the user moves and sizes.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "vcl/controls/wincontrol.h"
#include "vcl/rtl/collection.h"
#include "vcl/stdctrls/linkedimages.h"

namespace vcl {

class TCoolBar;
class TCoolBands;

/// A band of a cool bar. Measures are in pixels.
class VCL_API TCoolBand : public TCollectionItem {
 public:
  explicit TCoolBand(TCollection* collection) : TCollectionItem(collection) {}
  ~TCoolBand() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void Assign(const TPersistent* source) override;
  std::string DisplayName() const override;

  bool Break() const { return FBreak; }
  /// True begins a new row with the band.
  void SetBreak(bool breaks);
  TWinControl* Control() const { return FControl; }
  /// What the band holds, which comes onto the cool bar and leaves the band that it stood in; null
  /// for nothing. Raises EInvalidOperation for what the cool bar stands in itself.
  void SetControl(TWinControl* control);
  bool FixedSize() const { return FFixedSize; }
  /// True keeps the user from moving and sizing the band.
  void SetFixedSize(bool fixed);
  bool HorizontalOnly() const { return FHorizontalOnly; }
  /// True hides the band while the cool bar is vertical.
  void SetHorizontalOnly(bool only);
  int ImageIndex() const { return FImageIndex; }
  /// The picture in front of the text, in the cool bar's Images; -1 for none. Less is taken as -1.
  void SetImageIndex(int index);
  int MinHeight() const { return FMinHeight; }
  /// The least height of the control's room; a tool bar with AutoSize may need more. Less than 0 is
  /// taken as 0.
  void SetMinHeight(int height);
  int MinWidth() const { return FMinWidth; }
  /// The least width of the control's room. Less than 0 is taken as 0.
  void SetMinWidth(int width);
  const std::string& Text() const { return FText; }
  /// The text in front of the control.
  void SetText(const std::string& text);
  bool Visible() const { return FVisible; }
  /// False hides the band with its control.
  void SetVisible(bool visible);
  int Width() const { return FWidth; }
  /// The band's width, of which a row may give it more. Less than 0 is taken as 0.
  void SetWidth(int width);

 private:
  friend class TCoolBands;
  friend class TCoolBar;
  template <class T>
  void Change(T& field, const T& value);
  TCoolBar* Bar() const;

  std::string FText;
  TWinControl* FControl = nullptr;
  TRect FPlace;         // Where the window has put the control.
  int FWanted = 0;      // The height that the control has given itself.
  bool FShown = false;  // As the window has been told.
  int FImageIndex = -1;
  int FMinHeight = 25;
  int FMinWidth = 0;
  int FWidth = 180;
  bool FBreak = true;
  bool FFixedSize = false;
  bool FHorizontalOnly = false;
  bool FVisible = true;
};

/// The bands, in the order in which they are shown.
class VCL_API TCoolBands : public TCollection {
 public:
  TCoolBands() : TCollection(TCoolBand::Class()) {}
  /// The band at the index from 0. Raises EListError outside.
  TCoolBand* Items(int index) const { return static_cast<TCoolBand*>(TCollection::Items(index)); }
  TCoolBand* Add() { return static_cast<TCoolBand*>(TCollection::Add()); }
  /// The band that holds the control; null for none.
  TCoolBand* FindBand(const TControl* control) const;

 private:
  friend class TCoolBand;
  friend class TCoolBar;
  TCoolBar* FBar = nullptr;
};

/// The system's rebar. Each control that comes onto it gets a band, which goes with the control.
/// The user drags bands to other places and rows, and their edges; the bands keep what he makes of
/// them. The bar's height, or its width when it is vertical, is what its rows need.
class VCL_API TCoolBar : public TWinControl {
 public:
  explicit TCoolBar(TComponent* owner);
  ~TCoolBar() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(TAccessibleInfo& info) const override;
  std::vector<TAccessiblePart> AccessibleParts() override;

  TCoolBands* Bands() const { return FBands.get(); }
  /// The bands, in order.
  void SetBands(const TCollection* bands) { FBands->Assign(bands); }
  TBorderStyle BandBorderStyle() const { return FBandBorderStyle; }
  /// bsSingle draws lines between the bands. Raises EArgumentOutOfRangeException for others than
  /// that and bsNone.
  void SetBandBorderStyle(TBorderStyle style);
  bool FixedOrder() const { return FFixedOrder; }
  /// True keeps the order of the bands, which then only change rows.
  void SetFixedOrder(bool fixedOrder);
  TImageList* Images() const { return FImages.List; }
  /// What the bands' ImageIndex counts in.
  void SetImages(TImageList* images);
  bool ShowText() const { return FShowText; }
  /// False hides the bands' texts.
  void SetShowText(bool show);
  bool Vertical() const { return FVertical; }
  /// True has the bands stand side by side from the left, in columns.
  void SetVertical(bool vertical);

  /// The user has moved or sized a band.
  TNotifyEvent OnChange;

 protected:
  virtual void Change();
  void AlignControls(TControl* control, TRect& rect) override;
  bool ArrangesFree() const override { return true; }
  void ChangeScale(int m, int d) override;
  void CreateParams(TCreateParams& params) override;
  void CreateWnd() override;
  void DefaultHandler(TMessage& message) override;
  void Dispatch(TMessage& message) override;
  void Loaded() override;
  void Notification(TComponent* component, TOperation operation) override;
  void Resize() override;

 private:
  friend class TCoolBand;
  template <class T>
  void ChangeWindow(T& field, T value);
  void PicturesChanged(TObject* sender);
  void BandsChanged();
  void SendBands();
  void SendAll();
  bool RowsHold() const;
  void SendBand(const TCoolBand& band, int index);
  void ForgetOtherBands();
  bool Shows(const TCoolBand& band) const;
  TCoolBand* BandOf(UINT place) const;
  void NotifyFromWindow(const TMessage& message);
  void PlaceChild(LPARAM told);
  void TakeLayout();
  void FitRows();
  void SendLater();
  bool PutBack(TCoolBand& band);
  void ControlsChanged(TControl* control, bool comes);
  void WindowInside(const TMessage& message);

  std::unique_ptr<TCoolBands> FBands;
  TLinkedImages FImages;
  TBorderStyle FBandBorderStyle = bsSingle;
  bool FFixedOrder = false;
  bool FShowText = true;
  bool FVertical = false;
  bool FSending = false;   // What the window tells is known.
  bool FStale = false;     // The window is to be told all, as one of a control is new.
  bool FUserActs = false;  // The window is handling the mouse.
  bool FChanged = false;   // It has told of what the user made of the bands.
};

}  // namespace vcl
