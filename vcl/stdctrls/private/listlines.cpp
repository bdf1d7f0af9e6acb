// TListLines: the lines of a list box or combo box, told to its window line by line.
#include "vcl/stdctrls/private/listlines.h"

#include <algorithm>

#include "vcl/controls/windowmessages.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/stdctrls/listcontrol.h"

namespace vcl {
namespace {

/// The order of the user's language, as the system's own lists sort.
bool Before(const std::string& a, const std::string& b) {
  const std::wstring left = ToUtf16(a);
  const std::wstring right = ToUtf16(b);
  return ::CompareStringW(LOCALE_USER_DEFAULT, NORM_IGNORECASE, left.data(),
                          static_cast<int>(left.size()), right.data(),
                          static_cast<int>(right.size())) == CSTR_LESS_THAN;
}

}  // namespace

const TListMessages ListBoxMessages{LB_INSERTSTRING, LB_DELETESTRING,  LB_RESETCONTENT,
                                    LB_GETCURSEL,    LB_SETCURSEL,     LB_GETSEL,
                                    LB_SETSEL,       LB_SETITEMHEIGHT, 0};
const TListMessages ComboBoxMessages{
    CB_INSERTSTRING,  CB_DELETESTRING, CB_RESETCONTENT, CB_GETCURSEL, CB_SETCURSEL, 0, 0,
    CB_SETITEMHEIGHT, CB_SETITEMHEIGHT};

TListLines::TLine& TListLines::Line(int index) {
  CheckItem(index);
  return FLines[static_cast<std::size_t>(index)];
}

const TListLines::TLine& TListLines::Line(int index) const {
  CheckItem(index);
  return FLines[static_cast<std::size_t>(index)];
}

std::string TListLines::Strings(int index) const { return Line(index).Text; }
TObject* TListLines::Objects(int index) const { return Line(index).Object; }
void TListLines::SetObjects(int index, TObject* object) { Line(index).Object = object; }

void TListLines::RefuseWhenSorted() const {
  if (FSorted) throw EStringListError("A sorted list puts its items in their places itself");
}

void TListLines::SetStrings(int index, const std::string& text) {
  RefuseWhenSorted();
  TLine& line = Line(index);
  if (!FControl.HandleAllocated()) {
    line.Text = text;
    return;
  }
  // A window cannot change an item's text, only put another item in its place.
  TObject* object = line.Object;
  const int mark = line.Mark;
  const bool selected = SelectedInWindow(index);
  const TWatch watch(&FControl);
  Delete(index);
  InsertLine(index, text, object);
  if (watch.Gone()) return;
  SetMark(index, mark);
  if (selected) SelectInWindow(index);
}

bool TListLines::SelectedInWindow(int index) const {
  if (FMessages.GetItemSelected == 0) return Send(FControl, FMessages.GetSelected) == index;
  return Send(FControl, FMessages.GetItemSelected, static_cast<WPARAM>(index)) > 0;
}

void TListLines::SelectInWindow(int index) {
  // A list box with one selected item refuses the message that is for many.
  const bool done =
      FMessages.SetItemSelected != 0 && Send(FControl, FMessages.SetItemSelected, TRUE, index) >= 0;
  if (!done) Send(FControl, FMessages.SetSelected, static_cast<WPARAM>(index));
}

int TListLines::SortedPlace(const std::string& text) const {
  const auto place =
      std::upper_bound(FLines.begin(), FLines.end(), text,
                       [](const std::string& a, const TLine& b) { return Before(a, b.Text); });
  return static_cast<int>(place - FLines.begin());
}

int TListLines::AddObject(const std::string& text, TObject* object) {
  const int index = FSorted ? SortedPlace(text) : Count();
  InsertLine(index, text, object);
  return index;
}

void TListLines::InsertObject(int index, const std::string& text, TObject* object) {
  RefuseWhenSorted();
  CheckIndex(index, Count() + 1);
  InsertLine(index, text, object);
}

void TListLines::InsertLine(int index, const std::string& text, TObject* object) {
  // The line comes first: the window may ask for it to be drawn at once.
  FLines.insert(FLines.begin() + index, TLine{text, object, false, 0});
  const TOnFailure refused([&] { FLines.erase(FLines.begin() + index); }, &FControl);
  if (FControl.HandleAllocated()) TellInserted(index, text);
}

void TListLines::TellInserted(int index, const std::string& text) {
  const std::wstring wide = ToUtf16(text);
  const LRESULT place = Send(FControl, FMessages.Insert, static_cast<WPARAM>(index),
                             reinterpret_cast<LPARAM>(wide.c_str()));
  if (place < 0) throw EOutOfResources(Concat("The list has no room for the item '", text, "'"));
  FControl.ItemInserted(index);
}

void TListLines::Delete(int index) {
  CheckItem(index);
  FLines.erase(FLines.begin() + index);
  SendIfAllocated(FControl, FMessages.Delete, static_cast<WPARAM>(index));
}

void TListLines::Clear() {
  FLines.clear();
  SendIfAllocated(FControl, FMessages.Reset);
}

void TListLines::SetSorted(bool sorted) {
  FSorted = sorted;
  if (!sorted) return;
  std::ranges::stable_sort(FLines,
                           [](const TLine& a, const TLine& b) { return Before(a.Text, b.Text); });
}

bool TListLines::Selected(int index) const { return Line(index).Selected; }
void TListLines::SetSelected(int index, bool selected) { Line(index).Selected = selected; }

int TListLines::FirstSelected() const {
  const auto found = std::ranges::find_if(FLines, [](const TLine& line) { return line.Selected; });
  return found == FLines.end() ? -1 : static_cast<int>(found - FLines.begin());
}

void TListLines::SelectOnly(int index) {
  for (TLine& line : FLines) line.Selected = false;
  if (index >= 0) Line(index).Selected = true;
}

void TListLines::FillWindow() {
  Send(FControl, WM_SETREDRAW, FALSE);
  const TWatch watch(&FControl);
  for (int i = 0; !watch.Gone() && i < Count(); ++i) {
    TellInserted(i, FLines[static_cast<std::size_t>(i)].Text);
  }
  if (!watch.Gone()) Send(FControl, WM_SETREDRAW, TRUE);
}

void TListLines::SetUpdateState(bool updating) {
  SendIfAllocated(FControl, WM_SETREDRAW, !updating);
  if (!updating) FControl.Invalidate();
}

}  // namespace vcl
