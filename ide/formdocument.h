// TFormDocument: a form that is designed, the file that it is kept in, and its former states.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "ide/ancestors.h"
#include "ide/formlinks.h"
#include "ide/stage.h"
#include "ide/standins.h"
#include "ide/undohistory.h"
#include "vcl/forms/forms.h"
#include "vcl/rtl/writer.h"

namespace ide {

/// The document of a designer. What the file holds and this program doesn't know stays in it.
///
/// Going back to a former state, like loading, makes a new form: whoever refers to the form or its
/// components lets go of them at `OnRootGoing` and takes the new ones at `OnRootMade`.
class TFormDocument {
 public:
  /// The hook must outlive the document.
  explicit TFormDocument(vcl::TDesignerHook& hook);
  ~TFormDocument();
  TFormDocument(const TFormDocument&) = delete;
  TFormDocument& operator=(const TFormDocument&) = delete;

  /// The form, frame or data module; only after New, Load or Restore.
  vcl::TComponent& Root() const { return *FRoot; }
  /// The window that shows it.
  TStage& Stage() const { return *FStage; }
  bool HasRoot() const { return FRoot != nullptr; }
  /// The file's name with its folder; empty for a form that was never saved.
  const std::string& FileName() const { return FFileName; }

  /// An empty form, or what else of TForm, TFrame and TDataModule is wanted, of that name; its
  /// class is the name with a T in front.
  void New(const std::string& formName, const vcl::TClass& sort = vcl::TForm::Class());
  /// A form of that name that descends from the one of a file; the two shall stand in one folder.
  /// Raises what Load raises.
  void NewInherited(const std::string& formName, const std::string& ancestorFile);
  /// Reads a form file; that of a descendant on top of its ancestors' (ancestors.h). What it holds
  /// and can't be used is kept and told to `OnProblem`. Raises EFOpenError, EParserError,
  /// EReadError; the document is as before then.
  void Load(const std::string& fileName);
  /// The same for the copy that the autosave left of the file; the document is modified then, and
  /// has no file when there is none of that name.
  void LoadAutosaved(const std::string& fileName);
  /// Replaces the file by the form's text. Raises EInOutError; the file is as before then, and the
  /// document is still modified. That its ancestors' or frames' files stand in another folder is
  /// told to `OnProblem`.
  void Save(const std::string& fileName);
  /// The form as a form file's text: of a descendant, what differs from its ancestor.
  std::string Text() const;

  /// The form file of the class that the form descends from; null for one that descends from none.
  const TAncestorFile* Base() const {
    return FOrigin.Files.empty() ? nullptr : &FOrigin.Files.back();
  }
  /// TForm, TFrame or TDataModule.
  const vcl::TClass& Sort() const { return *FOrigin.Class; }
  /// The form that this one descends from, as its file has it; null for none.
  vcl::TComponent* Ancestor() const { return FAncestor.get(); }
  /// True when only the unit says what the file's root descends from.
  bool NeedsUnit() const { return Base() || &Sort() != &vcl::TForm::Class(); }
  /// What the object is in the ancestor, or in the file of the frame that it is in, where it is of
  /// the same class; null for what is new here.
  const vcl::TObject* AncestorOf(const vcl::TObject& object) const;
  /// The frame of a class as its file in the form's folder has it, to be put on the form as a text;
  /// a form that has no folder yet takes the file's. Raises EReadError and EFOpenError.
  std::string FrameText(const std::string& fileName, const std::string& name);
  /// Where the files of its ancestors and frames are; empty when there is no folder yet.
  const std::string& Folder() const { return FKeeper.Folder; }
  /// True when the form descends from a class or has a frame of it.
  bool StandsOn(const std::string& className) const;
  /// The form file of a class that the form stands on has been written: takes over what it holds
  /// now, under what the form itself changes. Raises what Load raises; the form is as before then.
  /// That is no step of undo.
  void Rebase();
  /// The form with what it inherits, as the text of a file that stands on no ancestor's.
  std::string WholeText() const { return TextOf(*FRoot, nullptr); }
  /// How frames are written: as the difference from their own files.
  vcl::TFormAncestry Frames() const;

  /// To be called after every change; see TUndoHistory::Add. A form that got another name gets
  /// another class too, as long as that was the name with a T in front.
  void Changed(const std::string& key = {});
  bool Modified() const { return FRoot && !FHistory.Clean(); }
  /// True for a form that nothing was done with yet, nor one is there.
  bool IsFresh() const;
  bool CanUndo() const { return FHistory.CanUndo(); }
  bool CanRedo() const { return FHistory.CanRedo(); }
  void Undo();
  void Redo();

  /// Where the copy of a file is kept that saves the user's work of a killed program.
  static std::string AutosaveName(const std::string& fileName);
  /// True when there is a copy that is newer than the file.
  static bool HasAutosave(const std::string& fileName);
  /// The name that the copy of a form without a file goes by; without it there is no copy.
  void SetCopyName(const std::string& name) { FCopyName = name; }
  /// Writes the copy, if the form was modified since the last one. Raises EInOutError.
  void Autosave();
  /// The file that there is a copy of; empty for none.
  std::string Copied() const { return FAutosaved.empty() ? std::string() : CopyOf(); }
  /// The form is saved, or its changes are given up.
  void DiscardAutosave();

  /// True when another program has changed or removed the file since it was read or written.
  bool ChangedOnDisk() const;
  /// The form stays as it is, and is modified: it is not what the file holds.
  void StayApart();

  /// Pastes components from a form file's text into the form; each outermost one is handed to
  /// `made`. Raises EParserError and EReadError; nothing is pasted then.
  void Paste(const std::string& text, vcl::TWinControl& parent,
             const std::function<void(vcl::TComponent*)>& made);

  /// Another open form has changed: what this one refers to there holds as far as it can. That is
  /// no step of undo.
  void FollowOthers();
  /// The form has been saved: its components' names are those that this one's file gives them.
  void TakeNamesOf(const vcl::TComponent& otherRoot);
  /// The other forms that are open.
  std::vector<vcl::TComponent*> Others() const {
    return FKeeper.Others ? FKeeper.Others() : std::vector<vcl::TComponent*>();
  }
  void SetOthers(std::function<std::vector<vcl::TComponent*>()> others) {
    FKeeper.Others = std::move(others);
  }

  std::function<void()> OnRootGoing, OnRootMade;
  /// The form, its file's name or its state of being modified has changed.
  std::function<void()> OnChange;
  /// Something that the file holds could not be used.
  std::function<void(const std::string& message)> OnProblem;

 private:
  using TRoot = std::unique_ptr<vcl::TComponent>;
  TRoot Make(const TFormOrigin& origin, vcl::TDesignerHook* hook);
  TRoot Read(const std::string& bytes, const std::string& name, const TFormOrigin& origin);
  TRoot ReadAncestor(const TFormOrigin& origin);
  void Open(const std::string& bytes, const std::string& name, TFormOrigin origin);
  void OpenNew(const std::string& text, const std::string& name, TFormOrigin origin);
  std::string TextOf(vcl::TComponent& root, vcl::TComponent* ancestor) const;
  const vcl::TComponent* AncestorOfComponent(const vcl::TComponent& component) const;
  const vcl::TComponent* PristineOf(const vcl::TComponent& frame) const;
  void Take(TRoot root);
  void NameClass();
  void CheckFolder();
  const std::string& CopyOf() const { return FFileName.empty() ? FCopyName : FFileName; }
  void Restore(const std::string& state, bool quiet);
  std::string State() const;
  void Tell(const std::function<void()>& event) const {
    if (event) event();
  }

  vcl::TDesignerHook& FHook;
  std::unique_ptr<TStage> FStage;  // The root ends before it.
  TRoot FRoot;
  TFormOrigin FOrigin{&vcl::TForm::Class(), {}, {}};
  TRoot FAncestor;
  mutable std::map<std::string, TRoot> FPristine;  // Frames as their files have them, by class.
  std::string FRootName;
  std::string FFileName;
  std::string FCopyName;
  std::string FAutosaved;
  std::uint64_t FFileTime = 0;  // When the file was written, as far as is known here.
  TFormKeeper FKeeper;
  TFormLinks FLinks;
  bool FQuiet = false;  // What is restored has been told before.
  TUndoHistory FHistory;
};

}  // namespace ide
