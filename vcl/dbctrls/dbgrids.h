// TDBGrid: records in rows, to be looked at.
#pragma once

#include "vcl/controls/wincontrol.h"
#include "vcl/db/datasource.h"

namespace vcl {

/// Shows the visible fields of the records around the current one, which is marked; the keyboard,
/// the wheel, the scroll bar and clicks make others the current one. Nothing is edited here. Of a
/// unidirectional data set it shows the current record only.
class VCL_API TDBGrid : public TCustomControl {
 public:
  explicit TDBGrid(TComponent* owner);
  ~TDBGrid() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(TAccessibleInfo& info) const override;
  std::vector<TAccessiblePart> AccessibleParts() override;
  void DoAccessiblePart(const TAccessiblePath& part) override;

  TDataSource* DataSource() const { return FLink.DataSource(); }
  /// The source of the data set whose records are shown; null for none.
  void SetDataSource(TDataSource* dataSource);

 protected:
  void CreateParams(TCreateParams& params) override;
  void CreateWnd() override;
  void Dispatch(TMessage& message) override;
  void Resize() override;
  void Paint() override;
  void KeyDown(std::uint16_t& key, TShiftState shift) override;
  void MouseDown(TMouseButton button, TShiftState shift, int x, int y) override;

 private:
  /// Repaints the grid whatever has happened.
  class TLink : public TDataLink {
   public:
    explicit TLink(TDBGrid& grid) : FGrid(grid) {}

   protected:
    void ActiveChanged() override { FGrid.DataChanged(); }
    void EditingChanged() override { FGrid.DataChanged(); }
    void RecordChanged(TField*) override { FGrid.DataChanged(); }

   private:
    TDBGrid& FGrid;
  };

  void DataChanged();
  void ShowScrollPosition();
  int RowHeight() const;
  int Margin() const;
  int ColumnWidth(const TField& field) const;
  void PaintTitles();
  void PaintRow(int row, bool current);
  void PaintCell(const TRect& rect, const std::string& text, bool right);
  /// Goes by a command of the scroll bar.
  void Scroll(int command);
  void MoveBy(int distance);
  /// Tells screen readers of another current record.
  void TellCurrent();
  TAccessiblePart DescribeRow(int row, bool titles) const;

  TLink FLink;
  int FToldRecord = 0;  // Which one screen readers know as the current one.
};

}  // namespace vcl
