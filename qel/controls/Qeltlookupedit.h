// TQELLookupEdit: an edit whose list opens under it as one types.
#pragma once

#include "qel/controls/Qelpartedit.h"
#include "qel/core/Qellookup.h"
#include "vcl/stdctrls/popuplines.h"

namespace qel {

/// Sender, what is typed, and the list's items, for the handler to fill.
using TQELLookupEvent = vcl::TEvent<vcl::TObject*, const std::string&, vcl::TStrings*>;

/// An edit with a list of what may be meant under it: the items that begin with what is typed, or
/// contain it. The arrow keys and the mouse select, Enter and a click choose; Down, Alt+Down and F4
/// open the whole list.
class QEL_API TQELLookupEdit : public TQELCustomPartEdit {
 public:
  explicit TQELLookupEdit(vcl::TComponent* owner);
  ~TQELLookupEdit() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(vcl::TAccessibleInfo& info) const override;
  /// Opens the whole list, or closes it.
  void DoAccessibleAction() override { SetDroppedDown(!DroppedDown()); }

  /// What can be chosen.
  vcl::TStrings* Items() const { return FItems.get(); }
  void SetItems(const vcl::TStrings* items) { FItems->Assign(items); }
  int DropDownCount() const { return FDropDownCount; }
  /// How many items are seen at most when the list is open. Refuses, silently, less than 1.
  void SetDropDownCount(int count);
  bool MatchContains() const { return FMatchContains; }
  /// True finds what is typed anywhere in the items, False at their beginnings.
  void SetMatchContains(bool contains) { FMatchContains = contains; }
  bool CaseSensitive() const { return FCaseSensitive; }
  /// True tells capital letters from small ones.
  void SetCaseSensitive(bool caseSensitive) { FCaseSensitive = caseSensitive; }
  bool LimitToList() const { return FLimitToList; }
  /// True: a text that is no item is replaced by the last one that was, when the focus leaves.
  void SetLimitToList(bool limit) { FLimitToList = limit; }
  bool ShowButton() const { return FShowButton; }
  /// True shows a button that opens the whole list.
  void SetShowButton(bool show);
  int ItemIndex() const;
  /// The item that the text is; -1 for none. Refuses, silently, what is no item's index; while a
  /// form is read, the index waits for the items.
  void SetItemIndex(int index);
  bool DroppedDown() const { return FList.IsOpen(); }
  void SetDroppedDown(bool down);

  void SetTextBuf(const char* text) override;

  /// The text has been typed: the handler puts what may be meant into the items, wherever it has
  /// that from. All of them are shown then.
  TQELLookupEvent OnLookup;
  /// An item has been chosen from the list.
  vcl::TNotifyEvent OnSelect;

 protected:
  void Change() override;
  void KeyDown(std::uint16_t& key, vcl::TShiftState shift) override;
  void KeyPress(char32_t& key) override;
  void DoEnter() override;
  void DoExit() override;
  void DestroyWnd() override;
  void Dispatch(vcl::TMessage& message) override;
  void Loaded() override;
  std::vector<TQELEditPart> Parts() const override;
  void DrawPart(vcl::TCanvas& canvas, int number, const vcl::TRect& rect,
                TQELPartLook look) override;
  void PressPart(int number) override;
  bool PartEnabled(int number) const override;
  /// Makes the list for what is typed: the matching items, or what OnLookup finds.
  virtual void LookUp(const std::string& text);
  /// Puts what may be meant into the items. True when all of them match the text, false when those
  /// that do are to be found, or the edit has gone. Here: OnLookup, if there is one.
  virtual bool FillItems(const std::string& text);
  /// A line of the list has been chosen.
  virtual void Choose(int index);
  /// The focus leaves with LimitToList: replaces a text that is no item.
  virtual void KeepToList();

 private:
  bool IsItem(int index) const { return index >= 0 && index < FItems->Count(); }
  int IndexOfText(const std::string& text) const;
  void OpenList(std::vector<int> lines, int current);
  bool OpensList(std::uint16_t key, vcl::TShiftState shift) const;

  std::unique_ptr<vcl::TStringList> FItems;
  TQELTextMatcher FMatcher;
  vcl::TListUnder FList;
  std::vector<int> FLines;  // The items that the list shows.
  int FDropDownCount = 8;
  bool FMatchContains = false;
  bool FCaseSensitive = false;
  bool FLimitToList = false;
  bool FShowButton = true;
  bool FByCode = false;    // The text is being set.
  bool FKeyTaken = false;  // Its character is still to come.
  int FItemIndex = -1;     // Where two items are the same, the one that was chosen.
  int FLoadedIndex = -1;
  std::string FLastItem;  // What the text goes back to with LimitToList.
};

}  // namespace qel

namespace vcl {

template <>
inline constexpr TEventText EventText<qel::TQELLookupEvent>{
    "TQELLookupEvent", "vcl::TObject* sender, const std::string& text, vcl::TStrings* items"};

}  // namespace vcl
