// TQELDBAscii, which writes the records of a data set to a delimited text file and reads them back.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "qel/core/Qelcomponent.h"
#include "vcl/db/datasource.h"
#include "vcl/rtl/collection.h"

namespace qel {

class TQELDBAscii;

using TQELImportExportEvent = vcl::TEvent<vcl::TObject*, std::string>;
class TQELADField;
/// Sender, the column, whether the import goes on without the record.
using TQELImportValueEvent = vcl::TEvent<vcl::TObject*, TQELADField*, bool&>;

/// A column of the file.
class QEL_API TQELADField : public vcl::TCollectionItem {
 public:
  using TCollectionItem::TCollectionItem;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// The column's title in the header line.
  const std::string& CSVName() const { return FCSVName; }
  void SetCSVName(const std::string& name) { FCSVName = name; }
  /// The name of the data set's field.
  const std::string& DataField() const { return FDataField; }
  void SetDataField(const std::string& name);
  /// The component that it belongs to; null for an item of none.
  TQELDBAscii* Owner() const;
  /// The component's; null for an item of none.
  vcl::TFieldDataLink* DataLink() const;
  std::string DisplayName() const override;
  /// Copies DataField only.
  void Assign(const vcl::TPersistent* source) override;

 private:
  std::string FCSVName, FDataField;
};

/// The columns of the file, in their order.
class QEL_API TQELADFields : public vcl::TCollection {
 public:
  explicit TQELADFields(TQELDBAscii* owner);
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  TQELDBAscii* GetOwner() const { return FOwner; }
  TQELADField* Add();
  /// Raise EListError outside 0 to Count - 1. A value is copied into the item.
  TQELADField* GetItem(int index) const;
  void SetItem(int index, const TQELADField* value);

 private:
  TQELDBAscii* FOwner;
};

/// Exports the records of a data set to a text file, and imports them from one.
///
/// A record is a line, ended by CR LF: the texts (AsString) of the fields, in the order of Fields,
/// with the delimiter between them. Nothing is quoted: a value that contains the delimiter comes
/// back in other columns, and one with a line break as two lines. Nothing is converted either: the
/// file holds the fields' texts as they are, in UTF-8. Imported lines may end with LF or CR alone.
///
/// With a data set that can only move forward, the memory that is needed does not depend on the
/// number of records. A handler, of the data set too, may free the component or the data set: that
/// ends the run.
class QEL_API TQELDBAscii : public TQELComponent {
 public:
  explicit TQELDBAscii(vcl::TComponent* owner);
  ~TQELDBAscii() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  TQELADFields* Fields() const { return FFields.get(); }
  /// The columns of the file, in their order.
  void SetFields(const TQELADFields* fields) { FFields->Assign(fields); }
  /// The character between two columns. At first the one with the code 0, so that it must be set.
  char32_t Delimiter() const { return FDelimiter; }
  void SetDelimiter(char32_t delimiter) { FDelimiter = delimiter; }
  /// Begins the file with a line of the columns' titles, each in brackets; importing skips one.
  bool PrintHeader() const { return FPrintHeader; }
  void SetPrintHeader(bool printHeader) { FPrintHeader = printHeader; }
  const std::string& Filename() const { return FFilename; }
  /// The text file.
  void SetFilename(const std::string& filename) { FFilename = filename; }
  vcl::TDataSource* DataSource() const { return FDataLink->DataSource(); }
  /// The source of the data set whose records are exported or imported; null for none.
  void SetDataSource(vcl::TDataSource* dataSource);
  vcl::TFieldDataLink* DataLink() const { return FDataLink.get(); }

  /// Writes all records to the file, which it replaces; without a data set it only fires
  /// OnExportDone. A closed data set is opened, and closed at the end. Raises EInOutError for the
  /// file and EDatabaseError for a field that the data set has not: then what was written stays,
  /// and the data set where it is.
  void DoExport();
  /// Inserts a record for each line of the file that is not empty. A record that cannot be posted
  /// is told to OnImportException and given up, one with a value that its field does not take is
  /// given up when OnImportValueError says so; all else that fails is raised as by DoExport, the
  /// record being still inserted then.
  void DoImport();
  /// Why the last record could not be posted, or the last value not be taken, for OnImportException
  /// and OnImportValueError; at first empty.
  const std::string& ImportError() const { return FImportError; }
  /// The number, from 1, of the file's line that is being imported, or was last.
  int ImportLine() const { return FImportLine; }

  /// A line has been dealt with, also when its record was given up.
  TQELImportExportEvent OnImportSuccess;
  /// A record could not be posted; ImportError says why.
  TQELImportExportEvent OnImportException;
  /// Has ExportBeforeWrite called before an imported record is posted; it is not called itself.
  TQELImportExportEvent ImportBeforePost;
  /// Before a record is inserted for a line of the file.
  TQELImportExportEvent ImportBeforeInsert;
  /// Before a line is written; and, with ImportBeforePost, before an imported record is posted.
  TQELImportExportEvent ExportBeforeWrite;
  /// The export has ended, also when there was no data set.
  vcl::TNotifyEvent OnExportDone;
  /// A field does not take its column's value. Without a handler, and when it leaves false, what
  /// the field says is raised. Set by code.
  TQELImportValueEvent OnImportValueError;

 protected:
  void Notification(vcl::TComponent* component, vcl::TOperation operation) override;

 private:
  class TRun;
  std::string HeaderLine() const;
  void RecordLine(const vcl::TDataSet& data, std::string& line) const;
  void WriteRecords(TRun& run);
  void ReadRecords(TRun& run);
  void ImportRecord(TRun& run, const std::string& record);
  bool SetValues(TRun& run, std::string_view rest);
  bool SetValue(TRun& run, TQELADField* column, std::string_view value);
  void Finish(TRun& run, const std::string& record);
  void PostRecord(TRun& run, const std::string& record);

  std::unique_ptr<vcl::TFieldDataLink> FDataLink;
  std::unique_ptr<TQELADFields> FFields;
  std::string FFilename, FImportError;
  int FImportLine = 0;
  char32_t FDelimiter = 0;
  bool FPrintHeader = false;
};

}  // namespace qel
