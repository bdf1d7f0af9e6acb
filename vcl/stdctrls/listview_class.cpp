// What TCustomListView and TListView publish.
#include "vcl/controls/private/narrowed.h"
#include "vcl/controls/propertygroups.h"
#include "vcl/rtl/properties.h"
#include "vcl/stdctrls/listview.h"

namespace vcl {

const TClass& TCustomListView::Class() {
  using T = TCustomListView;
  static const TClass info = Describe<T, TWinControl>(
      "vcl::TCustomListView", "vcl/stdctrls/comctrls.h",
      {
          ControlBorder(Property<&T::BorderStyle, &T::SetBorderStyle>("BorderStyle"))
              .Default(bsSingle)
              .Unpublished(),
          Property<&T::Checkboxes, &T::SetCheckboxes>("Checkboxes").Default(false).Unpublished(),
          Property<&T::ColumnClick, &T::SetColumnClick>("ColumnClick").Default(true).Unpublished(),
          Property<&T::Columns, &T::SetColumns>("Columns").Unpublished(),
          Property<&T::FullDrag, &T::SetFullDrag>("FullDrag").Default(false).Unpublished(),
          Property<&T::GridLines, &T::SetGridLines>("GridLines").Default(false).Unpublished(),
          Property<&T::Groups, &T::SetGroups>("Groups").Unpublished(),
          Property<&T::GroupView, &T::SetGroupView>("GroupView").Default(false).Unpublished(),
          Property<&T::HideSelection, &T::SetHideSelection>("HideSelection")
              .Default(true)
              .Unpublished(),
          Property<&T::HotTrack, &T::SetHotTrack>("HotTrack").Default(false).Unpublished(),
          Property<&T::Items, &T::SetItems>("Items").Unpublished(),
          Property<&T::LargeImages, &T::SetLargeImages>("LargeImages").Unpublished(),
          Property<&T::MultiSelect, &T::SetMultiSelect>("MultiSelect").Default(false).Unpublished(),
          Property<&T::OwnerData, &T::SetOwnerData>("OwnerData").Default(false).Unpublished(),
          Property<&T::ReadOnly, &T::SetReadOnly>("ReadOnly").Default(false).Unpublished(),
          Property<&T::RowSelect, &T::SetRowSelect>("RowSelect").Default(false).Unpublished(),
          Property<&T::ShowColumnHeaders, &T::SetShowColumnHeaders>("ShowColumnHeaders")
              .Default(true)
              .Unpublished(),
          Property<&T::SmallImages, &T::SetSmallImages>("SmallImages").Unpublished(),
          Property<&T::SortType, &T::SetSortType>("SortType").Default(stNone).Unpublished(),
          Property<&T::StateImages, &T::SetStateImages>("StateImages").Unpublished(),
          Property<&T::ViewStyle, &T::SetViewStyle>("ViewStyle").Default(vsIcon).Unpublished(),
          Event<&T::OnChange>("OnChange")
              .Type("TLVChangeEvent",
                    "vcl::TObject* sender, vcl::TListItem* item, vcl::TItemChange change")
              .Unpublished(),
          Event<&T::OnChanging>("OnChanging")
              .Type("TLVChangingEvent",
                    "vcl::TObject* sender, vcl::TListItem* item, vcl::TItemChange change, bool& "
                    "allow")
              .Unpublished(),
          Event<&T::OnColumnClick>("OnColumnClick")
              .Type("TLVColumnClickEvent", "vcl::TObject* sender, vcl::TListColumn* column")
              .Unpublished(),
          Event<&T::OnColumnDragged>("OnColumnDragged").Unpublished(),
          Event<&T::OnColumnResized>("OnColumnResized")
              .Type("TLVColumnClickEvent", "vcl::TObject* sender, vcl::TListColumn* column")
              .Unpublished(),
          Event<&T::OnColumnRightClick>("OnColumnRightClick")
              .Type("TLVColumnRightClickEvent",
                    "vcl::TObject* sender, vcl::TListColumn* column, vcl::TPoint at")
              .Unpublished(),
          Event<&T::OnCompare>("OnCompare")
              .Type("TLVCompareEvent",
                    "vcl::TObject* sender, vcl::TListItem* first, vcl::TListItem* second, int "
                    "data, int& order")
              .Unpublished(),
          Event<&T::OnCustomDraw>("OnCustomDraw")
              .Type("TLVCustomDrawEvent",
                    "vcl::TObject* sender, const vcl::TRect& rect, bool& defaultDraw")
              .Unpublished(),
          Event<&T::OnCustomDrawItem>("OnCustomDrawItem")
              .Type("TLVCustomDrawItemEvent",
                    "vcl::TObject* sender, vcl::TListItem* item, vcl::TCustomDrawState state, "
                    "bool& defaultDraw")
              .Unpublished(),
          Event<&T::OnCustomDrawSubItem>("OnCustomDrawSubItem")
              .Type("TLVCustomDrawSubItemEvent",
                    "vcl::TObject* sender, vcl::TListItem* item, int subItem, "
                    "vcl::TCustomDrawState state, bool& defaultDraw")
              .Unpublished(),
          Event<&T::OnData>("OnData")
              .Type("TLVOwnerDataEvent", "vcl::TObject* sender, vcl::TListItem* item")
              .Unpublished(),
          Event<&T::OnDataFind>("OnDataFind")
              .Type("TLVOwnerDataFindEvent",
                    "vcl::TObject* sender, vcl::TItemFind find, const std::string& text, "
                    "vcl::TPoint position, void* data, int start, vcl::TSearchDirection "
                    "direction, bool wrap, int& index")
              .Unpublished(),
          Event<&T::OnDataHint>("OnDataHint")
              .Type("TLVOwnerDataHintEvent", "vcl::TObject* sender, int first, int last")
              .Unpublished(),
          Event<&T::OnDeletion>("OnDeletion")
              .Type("TLVDeletedEvent", "vcl::TObject* sender, vcl::TListItem* item")
              .Unpublished(),
          Event<&T::OnEdited>("OnEdited")
              .Type("TLVEditedEvent",
                    "vcl::TObject* sender, vcl::TListItem* item, std::string& text")
              .Unpublished(),
          Event<&T::OnEditing>("OnEditing")
              .Type("TLVEditingEvent", "vcl::TObject* sender, vcl::TListItem* item, bool& allow")
              .Unpublished(),
          Event<&T::OnGetImageIndex>("OnGetImageIndex")
              .Type("TLVNotifyEvent", "vcl::TObject* sender, vcl::TListItem* item")
              .Unpublished(),
          Event<&T::OnGetSubItemImage>("OnGetSubItemImage")
              .Type("TLVSubItemImageEvent",
                    "vcl::TObject* sender, vcl::TListItem* item, int subItem, int& image")
              .Unpublished(),
          Event<&T::OnInsert>("OnInsert")
              .Type("TLVDeletedEvent", "vcl::TObject* sender, vcl::TListItem* item")
              .Unpublished(),
          Event<&T::OnItemChecked>("OnItemChecked")
              .Type("TLVNotifyEvent", "vcl::TObject* sender, vcl::TListItem* item")
              .Unpublished(),
          Event<&T::OnSelectItem>("OnSelectItem")
              .Type("TLVSelectItemEvent",
                    "vcl::TObject* sender, vcl::TListItem* item, bool selected")
              .Unpublished(),
      });
  return info;
}

const TClass& TListView::Class() {
  static const TClass info =
      Describe<TListView, TCustomListView>("vcl::TListView", "vcl/stdctrls/comctrls.h",
                                           {
                                               Inherit("Align"),
                                               Inherit("BorderStyle"),
                                               Inherit("Checkboxes"),
                                               Inherit("Color"),
                                               Inherit("ColumnClick"),
                                               Inherit("Ctl3D"),
                                               Inherit("DragCursor"),
                                               Inherit("DragMode"),
                                               Inherit("Enabled"),
                                               Inherit("Font"),
                                               Inherit("FullDrag"),
                                               Inherit("GridLines"),
                                               Inherit("GroupView"),
                                               Inherit("HideSelection"),
                                               Inherit("HotTrack"),
                                               Inherit("LargeImages"),
                                               Inherit("MultiSelect"),
                                               Inherit("OwnerData"),
                                               Inherit("ParentColor").Default(false),
                                               Inherit("ParentCtl3D"),
                                               Inherit("ParentFont"),
                                               Inherit("ParentShowHint"),
                                               Inherit("PopupMenu"),
                                               Inherit("ReadOnly"),
                                               Inherit("RowSelect"),
                                               Inherit("ShowColumnHeaders"),
                                               Inherit("ShowHint"),
                                               Inherit("SmallImages"),
                                               Inherit("SortType"),
                                               Inherit("StateImages"),
                                               Inherit("TabOrder"),
                                               Inherit("TabStop").Default(true),
                                               Inherit("ViewStyle"),
                                               Inherit("Visible"),
                                               // The items come when what they need is there.
                                               Inherit("Columns"),
                                               Inherit("Groups"),
                                               Inherit("Items"),
                                               Inherit("OnChange"),
                                               Inherit("OnChanging"),
                                               Inherit("OnClick"),
                                               Inherit("OnColumnClick"),
                                               Inherit("OnColumnDragged"),
                                               Inherit("OnColumnResized"),
                                               Inherit("OnColumnRightClick"),
                                               Inherit("OnCompare"),
                                               Inherit("OnCustomDraw"),
                                               Inherit("OnCustomDrawItem"),
                                               Inherit("OnCustomDrawSubItem"),
                                               Inherit("OnData"),
                                               Inherit("OnDataFind"),
                                               Inherit("OnDataHint"),
                                               Inherit("OnDblClick"),
                                               Inherit("OnDeletion"),
                                               Inherit(DragEvents),
                                               Inherit("OnEdited"),
                                               Inherit("OnEditing"),
                                               Inherit(FocusEvents),
                                               Inherit("OnGetImageIndex"),
                                               Inherit("OnGetSubItemImage"),
                                               Inherit("OnInsert"),
                                               Inherit("OnItemChecked"),
                                               Inherit(KeyEvents),
                                               Inherit(MouseEvents),
                                               Inherit(WheelEvents),
                                               Inherit("OnResize"),
                                               Inherit("OnSelectItem"),
                                               Inherit("OnStartDrag"),
                                           });
  return info;
}

}  // namespace vcl
