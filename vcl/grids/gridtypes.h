// The small types of grids: options, the states of cells, places, styles of editing, events.
#pragma once

#include <string>

#include "vcl/controls/controltypes.h"

namespace vcl {

class TStrings;

enum TGridOption {
  goFixedVertLine,      ///< Lines between the fixed cells' columns.
  goFixedHorzLine,      ///< Lines between the fixed cells' rows.
  goVertLine,           ///< Lines between the other columns.
  goHorzLine,           ///< Lines between the other rows.
  goRangeSelect,        ///< Shift and dragging select a block of cells.
  goDrawFocusSelected,  ///< The current cell looks selected also while it has the focus.
  goRowSizing,          ///< The user drags the lower edges of fixed cells.
  goColSizing,          ///< The user drags the right edges of fixed cells.
  goRowMoving,          ///< The user drags rows by their fixed cells.
  goColMoving,          ///< The user drags columns by their fixed cells.
  goEditing,            ///< Cells are edited in place.
  goTabs,               ///< Tab goes from cell to cell, and on behind the last one.
  goRowSelect,          ///< Whole rows are selected; nothing is edited.
  goAlwaysShowEditor,   ///< With goEditing: the current cell is always being edited.
  goThumbTracking,      ///< The cells follow the scroll bar's thumb while it is dragged.
  goFixedColClick,      ///< Clicks on fixed columns are told by OnFixedCellClick.
  goFixedRowClick       ///< Clicks on fixed rows are told by OnFixedCellClick.
};
template <>
inline constexpr TEnumText EnumText<TGridOption>{
    "TGridOption",
    "goFixedVertLine goFixedHorzLine goVertLine goHorzLine goRangeSelect goDrawFocusSelected "
    "goRowSizing goColSizing goRowMoving goColMoving goEditing goTabs goRowSelect "
    "goAlwaysShowEditor goThumbTracking goFixedColClick goFixedRowClick",
    "TGridOptions"};
using TGridOptions = TSet<TGridOption>;

enum TGridDrawStateValue {
  gdSelected,
  gdFocused,  ///< The current cell, while the grid has the focus.
  gdFixed,
  gdRowSelected,  ///< Selected by goRowSelect.
  gdPressed       ///< A fixed cell that the mouse presses.
};
using TGridDrawState = TSet<TGridDrawStateValue>;

/// How a cell is edited: in an edit; with a button beside it that OnEditButtonClick tells of; with
/// a list of values that drops down; by a check box.
enum TEditStyle { esSimple, esEllipsis, esPickList, esCheckBox };

/// A cell by column and row, from 0; -1 for none.
struct TGridCoord {
  int X = -1;
  int Y = -1;
  friend constexpr bool operator==(const TGridCoord&, const TGridCoord&) = default;
};

/// A block of cells; the last column and row belong to it. Empty when one of them lies before the
/// first.
struct TGridRect {
  int Left = 0;
  int Top = 0;
  int Right = -1;
  int Bottom = -1;
  constexpr bool Empty() const { return Right < Left || Bottom < Top; }
  constexpr bool Contains(int col, int row) const {
    return col >= Left && col <= Right && row >= Top && row <= Bottom;
  }
  friend constexpr bool operator==(const TGridRect&, const TGridRect&) = default;
};

/// Sender, column, row, and the text to be edited.
using TGetEditEvent = TEvent<TObject*, int, int, std::string&>;
/// Sender, column, row, and the text that was typed. Raising refuses it.
using TSetEditEvent = TEvent<TObject*, int, int, const std::string&>;
/// Sender, column, row, and whether the cell may become the current one.
using TSelectCellEvent = TEvent<TObject*, int, int, bool&>;
/// Sender, column, row, the cell's rectangle on the sender's Canvas, its state.
using TDrawCellEvent = TEvent<TObject*, int, int, const TRect&, TGridDrawState>;
/// Sender, and two numbers: a column or row before and after it was moved, or column and row.
using TMovedEvent = TEvent<TObject*, int, int>;
/// Sender, column, row, and how the cell is edited.
using TGetEditStyleEvent = TEvent<TObject*, int, int, TEditStyle&>;
/// Sender, column, row, and the empty list for the values.
using TGetPickListEvent = TEvent<TObject*, int, int, TStrings*>;

template <>
inline constexpr TEventText EventText<TGetEditEvent>{
    "TGetEditEvent", "vcl::TObject* sender, int col, int row, std::string& text"};
template <>
inline constexpr TEventText EventText<TSetEditEvent>{
    "TSetEditEvent", "vcl::TObject* sender, int col, int row, const std::string& text"};
template <>
inline constexpr TEventText EventText<TDrawCellEvent>{
    "TDrawCellEvent",
    "vcl::TObject* sender, int col, int row, const vcl::TRect& rect, vcl::TGridDrawState state"};
template <>
inline constexpr TEventText EventText<TGetEditStyleEvent>{
    "TGetEditStyleEvent", "vcl::TObject* sender, int col, int row, vcl::TEditStyle& style"};
template <>
inline constexpr TEventText EventText<TGetPickListEvent>{
    "TGetPickListEvent", "vcl::TObject* sender, int col, int row, vcl::TStrings* items"};

}  // namespace vcl
