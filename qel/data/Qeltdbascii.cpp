// TQELDBAscii: its fields, exporting records to a text file, and importing them.
#include "qel/data/Qeltdbascii.h"

#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/textfile.h"

namespace qel {

const vcl::TClass& TQELADField::Class() {
  using T = TQELADField;
  static const vcl::TClass info = vcl::Describe<T, TCollectionItem>(
      "qel::TQELADField", "qel/data/Qeltdbascii.h",
      {
          vcl::Property<&T::CSVName, &T::SetCSVName>("CSVName"),
          vcl::Property<&T::DataField, &T::SetDataField>("DataField"),
      });
  return info;
}

TQELDBAscii* TQELADField::Owner() const {
  const auto* fields = dynamic_cast<const TQELADFields*>(Collection());
  return fields ? fields->GetOwner() : nullptr;
}

vcl::TFieldDataLink* TQELADField::DataLink() const {
  return Owner() ? Owner()->DataLink() : nullptr;
}

void TQELADField::SetDataField(const std::string& name) {
  FDataField = name;
  Changed(false);
}

std::string TQELADField::DisplayName() const {
  return FDataField.empty() ? TCollectionItem::DisplayName() : FDataField;
}

void TQELADField::Assign(const vcl::TPersistent* source) {
  const auto* other = dynamic_cast<const TQELADField*>(source);
  if (!other) return TCollectionItem::Assign(source);
  // The title stays behind on purpose: a copied list of columns gets titles of its own.
  SetDataField(other->FDataField);
}

const vcl::TClass& TQELADFields::Class() {
  static const vcl::TClass info =
      vcl::Describe<TQELADFields, TCollection>("qel::TQELADFields", "qel/data/Qeltdbascii.h", {});
  return info;
}

TQELADFields::TQELADFields(TQELDBAscii* owner) : TCollection(TQELADField::Class()), FOwner(owner) {}

TQELADField* TQELADFields::Add() { return static_cast<TQELADField*>(TCollection::Add()); }
TQELADField* TQELADFields::GetItem(int index) const {
  return static_cast<TQELADField*>(Items(index));
}
void TQELADFields::SetItem(int index, const TQELADField* value) { Items(index)->Assign(value); }

const vcl::TClass& TQELDBAscii::Class() {
  using T = TQELDBAscii;
  static const vcl::TClass info = vcl::Describe<T, TQELComponent>(
      "qel::TQELDBAscii", "qel/data/Qeltdbascii.h",
      {
          vcl::Property<&T::Fields, &T::SetFields>("Fields"),
          vcl::Property<&T::Delimiter, &T::SetDelimiter>("Delimiter"),
          vcl::Property<&T::Filename, &T::SetFilename>("Filename"),
          vcl::Property<&T::DataSource, &T::SetDataSource>("DataSource"),
          vcl::Property<&T::PrintHeader, &T::SetPrintHeader>("PrintHeader"),
          vcl::Event<&T::ImportBeforePost>("ImportBeforePost")
              .Type("TQELImportExportEvent", "vcl::TObject* sender, std::string line"),
          vcl::Event<&T::ImportBeforeInsert>("ImportBeforeInsert")
              .Type("TQELImportExportEvent", "vcl::TObject* sender, std::string line"),
          vcl::Event<&T::OnImportException>("OnImportException")
              .Type("TQELImportExportEvent", "vcl::TObject* sender, std::string line"),
          vcl::Event<&T::OnImportSuccess>("OnImportSuccess")
              .Type("TQELImportExportEvent", "vcl::TObject* sender, std::string line"),
          vcl::Event<&T::ExportBeforeWrite>("ExportBeforeWrite")
              .Type("TQELImportExportEvent", "vcl::TObject* sender, std::string line"),
          vcl::Event<&T::OnExportDone>("OnExportDone"),
      });
  return info;
}

TQELDBAscii::TQELDBAscii(vcl::TComponent* owner)
    : TQELComponent(owner),
      FDataLink(std::make_unique<vcl::TFieldDataLink>()),
      FFields(std::make_unique<TQELADFields>(this)) {}

TQELDBAscii::~TQELDBAscii() { AnnounceEnd(); }

void TQELDBAscii::SetDataSource(vcl::TDataSource* dataSource) {
  FDataLink->SetDataSource(dataSource);
  if (dataSource) dataSource->FreeNotification(this);
}

void TQELDBAscii::Notification(vcl::TComponent* component, vcl::TOperation operation) {
  TQELComponent::Notification(component, operation);
  if (operation == vcl::opRemove && component == DataSource()) SetDataSource(nullptr);
}

/// What one export or import works on, and whether it is all still there.
class TQELDBAscii::TRun {
 public:
  TRun(TQELDBAscii* component, vcl::TDataSet* data)
      : FComponent(component), FData(data), Data(*data), FWasActive(data->Active()) {
    Data.Open();
  }
  /// True after a handler has freed one of the two.
  bool Ended() const { return FComponent.Gone() || FData.Gone(); }
  /// Fires an event; false when it has ended the run.
  bool Fire(const TQELImportExportEvent& event, const std::string& text, TQELDBAscii* sender) {
    if (event) event(sender, text);
    return !Ended();
  }
  /// Leaves the data set open or closed, as it was.
  void Finish() {
    File.Close();
    if (!FWasActive) Data.Close();
  }

 private:
  vcl::TWatch FComponent, FData;

 public:
  vcl::TDataSet& Data;
  vcl::TTextFile File;

 private:
  bool FWasActive;
};

std::string TQELDBAscii::HeaderLine() const {
  std::string line;
  for (int i = 0; i < FFields->Count(); ++i) {
    line += vcl::Concat("(", FFields->GetItem(i)->CSVName(), ")");
  }
  return line;
}

void TQELDBAscii::RecordLine(const vcl::TDataSet& data, std::string& line) const {
  const std::string delimiter = vcl::Utf8(FDelimiter);
  line.clear();
  for (int i = 0; i < FFields->Count(); ++i) {
    if (i > 0) line += delimiter;
    line += data.FieldByName(FFields->GetItem(i)->DataField())->AsString();
  }
}

void TQELDBAscii::DoExport() {
  vcl::TWatch watch(this);
  if (vcl::TDataSet* data = FDataLink->DataSet()) {
    TRun run(this, data);
    if (!run.Ended()) WriteRecords(run);
    if (run.Ended()) return;
    run.Finish();
  }
  if (!watch.Gone()) OnExportDone(this);
}

void TQELDBAscii::WriteRecords(TRun& run) {
  run.Data.First();
  if (run.Ended()) return;
  run.File.Rewrite(FFilename);
  if (FPrintHeader) run.File.WriteLn(HeaderLine());
  std::string line;
  while (!run.Data.Eof()) {
    RecordLine(run.Data, line);
    if (!run.Fire(ExportBeforeWrite, line, this)) return;
    run.File.WriteLn(line);
    run.Data.Next();
    if (run.Ended()) return;
  }
}

void TQELDBAscii::DoImport() {
  vcl::TDataSet* data = FDataLink->DataSet();
  if (!data) return;
  TRun run(this, data);
  if (!run.Ended()) ReadRecords(run);
  if (!run.Ended()) run.Finish();
}

void TQELDBAscii::ReadRecords(TRun& run) {
  run.File.Reset(FFilename);
  FImportLine = 0;
  std::string line;
  const auto read = [&] {
    run.File.ReadLn(line);
    ++FImportLine;
  };
  if (FPrintHeader && !run.File.Eof()) read();
  while (!run.File.Eof()) {
    read();
    if (line.empty()) continue;
    ImportRecord(run, line);
    if (run.Ended()) return;
  }
}

void TQELDBAscii::ImportRecord(TRun& run, const std::string& record) {
  if (!run.Fire(ImportBeforeInsert, record, this)) return;
  run.Data.Insert();
  const bool taken = !run.Ended() && SetValues(run, record);
  if (run.Ended()) return;
  if (taken) {
    Finish(run, record);
  } else {
    run.Data.Cancel();
  }
  // Also after a failure: the event says that the line has been dealt with.
  if (!run.Ended()) OnImportSuccess(this, record);
}

/// Posts the record, behind its event.
void TQELDBAscii::Finish(TRun& run, const std::string& record) {
  // ImportBeforePost only says that somebody wants to know: the handler that is called is that of
  // ExportBeforeWrite, which must then be assigned as well. Programs rely on the pair.
  if (ImportBeforePost && !run.Fire(ExportBeforeWrite, record, this)) return;
  PostRecord(run, record);
}

/// False when the record is to be given up.
bool TQELDBAscii::SetValues(TRun& run, std::string_view rest) {
  const std::string delimiter = vcl::Utf8(FDelimiter);
  for (int i = 0; !run.Ended() && i < FFields->Count(); ++i) {
    const std::size_t end = rest.find(delimiter);
    const bool last = i == FFields->Count() - 1;
    // A column before the last one is empty where no delimiter follows, and the rest is still to
    // come; the last one takes all that is left, with whatever delimiters it has.
    const std::string_view value = last               ? rest
                                   : end == rest.npos ? std::string_view()
                                                      : rest.substr(0, end);
    if (!SetValue(run, FFields->GetItem(i), value)) return false;
    if (end != rest.npos) rest.remove_prefix(end + delimiter.size());
  }
  return true;
}

bool TQELDBAscii::SetValue(TRun& run, TQELADField* column, std::string_view value) {
  vcl::TField* const field = run.Data.FieldByName(column->DataField());
  try {
    field->SetAsString(std::string(value));
    return true;
  } catch (const std::exception& error) {
    if (run.Ended() || !OnImportValueError) throw;
    FImportError = error.what();
    bool goOn = false;
    OnImportValueError(this, column, goOn);
    if (!goOn && !run.Ended()) throw;
  }
  return false;
}

void TQELDBAscii::PostRecord(TRun& run, const std::string& record) {
  try {
    run.Data.Post();
    return;
  } catch (const std::exception& error) {
    if (run.Ended()) return;
    FImportError = error.what();
  }
  if (run.Fire(OnImportException, record, this)) run.Data.Cancel();
}

}  // namespace qel
