// TGridLine: a column or a row of a string grid as a list of texts.
#pragma once

#include <string>

#include "vcl/rtl/strings.h"

namespace vcl {

class TStringGrid;

/// As long as the grid is. Inserting and deleting move what stands behind.
class TGridLine : public TStrings {
 public:
  TGridLine(TStringGrid& grid, bool column, int index)
      : FGrid(grid), FColumn(column), FIndex(index) {}

  int Count() const override;
  std::string Strings(int index) const override;
  void SetStrings(int index, const std::string& text) override;
  TObject* Objects(int index) const override;
  void SetObjects(int index, TObject* object) override;
  int AddObject(const std::string& text, TObject* object) override;
  void InsertObject(int index, const std::string& text, TObject* object) override;
  void Delete(int index) override;
  void Clear() override;
  void Assign(const TPersistent* source) override;

 private:
  int Last() const;
  void Put(int index, const std::string& text, TObject* object);
  int ColOf(int index) const { return FColumn ? FIndex : index; }
  int RowOf(int index) const { return FColumn ? index : FIndex; }

  TStringGrid& FGrid;
  bool FColumn;
  int FIndex;
  int FAdded = 0;  // Since the line was last cleared, empty texts included.
};

}  // namespace vcl
