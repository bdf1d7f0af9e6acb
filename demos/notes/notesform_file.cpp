// TNotesForm: files, and text that is not saved.
#include <exception>

#include "demos/common/commandline.h"
#include "demos/notes/notesform.h"
#include "demos/notes/printtext.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace notes {

using namespace vcl;

bool TNotesForm::TStamp::operator==(const TStamp& other) const {
  return ::CompareFileTime(&Written, &other.Written) == 0 && Size == other.Size;
}

TNotesForm::TStamp TNotesForm::StampOf(const std::string& fileName) {
  WIN32_FILE_ATTRIBUTE_DATA data{};
  ::GetFileAttributesExW(ToUtf16(fileName).c_str(), GetFileExInfoStandard, &data);
  return {data.ftLastWriteTime, data.nFileSizeLow};
}

std::string TNotesForm::DocumentName() const {
  return FFileName.empty() ? "Untitled" : ExtractFileName(FFileName);
}

// Opening.

void TNotesForm::ShowText(const std::string& fileName, const TText& text) {
  Editor->SetText(text.Text);
  Editor->SetModified(false);
  Editor->ClearUndo();
  FFileName = fileName;
  FFormat = text.Format;
  FStamp = StampOf(fileName);
  FKeptChanges = FChanges;
  FShownCaret = -1;
}

void TNotesForm::Open(const std::string& fileName) {
  const std::string full = ExpandFileName(fileName);
  const TText text = ReadTextFile(full);
  ShowText(full, text);
  FRecovery.Discard();
  Remember(full);
  if (!text.MixedLineEnds) return;
  MessageDlg(Concat(full, " has line ends of several kinds. When it is saved, all are made alike."),
             mtInformation, {mbOK});
}

void TNotesForm::OpenIfWanted(const std::string& fileName) {
  if (!fileName.empty() && MayLoseText()) Open(fileName);
}

void TNotesForm::NewClick(TObject*) {
  if (!MayLoseText()) return;
  TText empty;
  empty.Format.LineEnds = FOptions.NewLineEnds;
  ShowText({}, empty);
  FRecovery.Discard();
}

void TNotesForm::OpenClick(TObject*) {
  OpenDialog->SetFileName({});
  if (MayLoseText() && OpenDialog->Execute()) Open(OpenDialog->FileName());
}

// The menu has dropped the name, which the opening brings back.
void TNotesForm::RecentClick(TObject*, std::string fileName) {
  MayLoseText() ? Open(fileName) : Remember(fileName);
}

// A program that is ended has no time for this later.
void TNotesForm::Remember(const std::string& fileName) {
  RecentFiles->Insert(fileName);
  RecentFiles->Save();
}

// Printing.

void TNotesForm::PageSetupClick(TObject*) { PageSetupDialog->Execute(); }

void TNotesForm::PreviewClick(TObject*) {
  TPreviewForm form(nullptr);
  form.Show(DocumentName(), {this, &TNotesForm::DrawPages});
  form.ShowModal();
}

void TNotesForm::PrintClick(TObject*) {
  if (!PrintDialog->Execute()) return;
  TPrinter& printer = *Printer();
  printer.SetTitle(DocumentName());
  printer.BeginDoc();
  const TOnFailure giveUp([&printer] {
    if (printer.Printing()) printer.Abort();
  });
  DrawPages(this, printer);
  printer.EndDoc();
}

void TNotesForm::DrawPages(TObject*, TPrintDocument& document) {
  PrintText(document, DocumentName(), Editor->Text(), *Editor->Font(),
            PageSetupDialog->TextArea(document));
}

// Saving.

void TNotesForm::SaveClick(TObject*) { Save(); }
void TNotesForm::SaveAsClick(TObject*) { SaveAs(); }

bool TNotesForm::Save() { return FFileName.empty() ? SaveAs() : SaveIn(FFileName); }

bool TNotesForm::SaveAs() {
  SaveDialog->SetFileName(FFileName);
  return SaveDialog->Execute() && SaveIn(SaveDialog->FileName());
}

// The text is kept beside the settings first: whatever happens while the file is written, it is
// there at the next start.
bool TNotesForm::SaveIn(const std::string& fileName) {
  if (fileName == FFileName && !(StampOf(fileName) == FStamp) &&
      MessageDlg(Concat(fileName, " has been changed by another program. Replace it?"), mtWarning,
                 {mbYes, mbNo}, mbNo) != mrYes)
    return false;
  KeepUnsaved();
  ReplaceContents(fileName, EncodeText(Editor->Text(), FFormat));
  FFileName = fileName;
  FStamp = StampOf(fileName);
  Editor->SetModified(false);
  FRecovery.Discard();
  Remember(fileName);
  return true;
}

bool TNotesForm::MayLoseText() {
  if (!Editor->Modified()) return true;
  const TModalResult answer = MessageDlg(Concat("Save the changes in ", DocumentName(), "?"),
                                         mtConfirmation, {mbYes, mbNo, mbCancel});
  if (answer == mrYes) return Save();
  if (answer != mrNo) return false;
  FRecovery.Discard();
  FKeptChanges = -1;  // Should the text stay after all, it is kept anew.
  return true;
}

// Unsaved text.

// Its failure must not stop what the user wants: he is told, and it is tried again.
bool TNotesForm::KeepUnsaved() {
  if (!Editor->Modified() || FKeptChanges == FChanges) return true;
  try {
    FRecovery.Keep({FFileName, {Editor->Text(), FFormat, false}});
    FKeptChanges = FChanges;
    return true;
  } catch (const Exception& error) {
    Tell(error.Message());
    return false;
  }
}

void TNotesForm::RecoveryTimerTick(TObject*) { KeepUnsaved(); }

void TNotesForm::OfferUnsaved() {
  const auto unsaved = FRecovery.Find();
  if (!unsaved) return;
  const std::string name = unsaved->FileName.empty() ? "a new text" : unsaved->FileName;
  if (MessageDlg(
          Concat("Notes was ended before the changes in ", name, " were saved. Bring them back?"),
          mtConfirmation, {mbYes, mbNo}) != mrYes)
    return FRecovery.Discard();
  ShowText(unsaved->FileName, unsaved->Text);
  Editor->SetModified(true);
  FKeptChanges = FChanges;  // They are where they were kept.
}

}  // namespace notes
