// TQELFormSaver: forms and their controls come back as they were left.
#pragma once

#include <memory>
#include <string>

#include "qel/core/Qelcomponent.h"
#include "qel/core/Qeltstoredata.h"
#include "vcl/forms/forms.h"

namespace qel {

/// The control that is about to be stored, and whether it is: a handler that makes it false spares
/// the control and all that is in it. It has the shape, and so the type, of vcl::TCloseQueryEvent.
using TQELOnStoreControl = vcl::TEvent<vcl::TObject*, bool&>;

/// Stores state, size, place and visibility of the application's forms (those that the application
/// owns, not its own form only) and of every control on them when its form is closed, and puts them
/// back when its form is shown. The form's own OnClose and OnShow are called first.
///
/// Everything is a value in the one section of FormStore: "<class>_WindowState" (1 minimised,
/// 2 normal, 3 maximised), "<class>_Width", "_Height", "_Top", "_Left" and "_Visible" of a form, by
/// the name of its class, and the latter five of a control, by its own name. Equally named controls
/// of two forms therefore share their values, and forms of one class too, unless QualifyNames parts
/// the former.
///
/// A value that can't be read leaves what it is for alone, as a missing one does, and FormStore's
/// OnError tells it. An INI file that another program has for itself is waited for and told once,
/// not for each value: nothing more is restored then. What the store refuses while storing is told
/// once, too, by OnError or, without a handler, by the application; the form closes all the same.
///
/// A form that is minimised or maximised when it is closed has only its state and visibility
/// stored. One with another Position than poDesigned is placed by it after OnShow.
class QEL_API TQELFormSaver : public TQELComponent {
 public:
  /// Takes OnClose and OnShow of `owner` over, if that is a TForm and not in the designer: handlers
  /// that are assigned by code later take them back, so assign them before or in the form file.
  explicit TQELFormSaver(vcl::TComponent* owner);
  /// Gives the form the handlers back that it had.
  ~TQELFormSaver() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// Where the values go. Disabled, nothing is stored nor restored; the form's own handlers and
  /// OnRestore are still called.
  TQELDataStore* FormStore() const { return FFormStore.get(); }
  bool StoreSize() const { return FStoreSize; }
  /// Stores width and height of forms and controls.
  void SetStoreSize(bool store) { FStoreSize = store; }
  bool StoreLocation() const { return FStoreLocation; }
  /// Stores the place of forms and controls.
  void SetStoreLocation(bool store) { FStoreLocation = store; }
  bool StoreState() const { return FStoreState; }
  /// Stores whether forms are minimised, maximised or neither.
  void SetStoreState(bool store) { FStoreState = store; }
  bool StoreVisible() const { return FStoreVisible; }
  /// Stores whether forms and controls are visible.
  void SetStoreVisible(bool store) { FStoreVisible = store; }
  bool StoreControls() const { return FStoreControls; }
  /// Stores the forms' controls, too.
  void SetStoreControls(bool store) { FStoreControls = store; }
  bool KeepOnScreen() const { return FKeepOnScreen; }
  /// True moves a restored form into the nearest monitor's work area when its title bar would
  /// otherwise be out of the mouse's reach, as when that monitor is no longer there. Off, a form
  /// comes back where it was, wherever that is.
  void SetKeepOnScreen(bool keep) { FKeepOnScreen = keep; }
  bool QualifyNames() const { return FQualifyNames; }
  /// True puts the class of its form and "_" before a control's name.
  void SetQualifyNames(bool qualify) { FQualifyNames = qualify; }

  /// Stores now, as closing the form does: its former OnClose is called too, with caNone.
  void Store();
  /// Restores now, as showing the form does: its former OnShow is called too.
  void Restore();

  /// The value from FormStore; `defaultValue` when it is not there. The store keeps the default as
  /// its ErrorInt, ErrorStr or ErrorBool, whatever was set there.
  int ReadInt(const std::string& ident, int defaultValue);
  std::string ReadStr(const std::string& ident, const std::string& defaultValue);
  bool ReadBool(const std::string& ident, bool defaultValue);

  /// Before storing, and only when FormStore is enabled; the sender is the form.
  vcl::TNotifyEvent OnStore;
  /// Before a control is stored; with false it is not, nor what is inside it.
  TQELOnStoreControl OnStoreControl;
  /// After restoring, also when FormStore is disabled; the sender is the form.
  vcl::TNotifyEvent OnRestore;

 protected:
  void StoreWindow(vcl::TForm* form);
  void RestoreWindow(vcl::TForm* form);
  void StoreControl(vcl::TControl* control);
  void RestoreControl(vcl::TControl* control);
  /// The form's OnClose and OnShow.
  void MyStore(vcl::TObject* sender, vcl::TCloseAction& action);
  void MyRestore(vcl::TObject* sender);
  /// A window procedure that keeps the form's bounds when the user minimises or maximises it. It is
  /// not installed on the form: a descendant that does so keeps what SetWindowLongPtrA returned in
  /// FPreviousWndProc, and its forms have the bounds stored that they had before.
  void ExtWndProc(vcl::TMessage& message);
  /// Keeps the form's bounds as those to store for a form that is not in the normal state.
  void BeforeMaximize();
  void Notification(vcl::TComponent* component, vcl::TOperation operation) override;

  WNDPROC FPreviousWndProc = nullptr;

 private:
  struct TPart;
  using TParts = const TPart[2];
  static TParts SizeParts, LocationParts;
  class TRound;
  struct TNormalBounds {
    int Left, Top, Width, Height;
  };

  void TakeForm();
  void LeaveForm();
  void WriteBackWndProc() const;
  void EachForm(void (TQELFormSaver::*handle)(vcl::TForm*));
  void EachControl(vcl::TWinControl* parent, void (TQELFormSaver::*handle)(vcl::TControl*));
  std::string NameOf(const vcl::TControl* control) const;
  void StoreFormParts(const vcl::TForm* form, const TRound& round, TParts& parts);
  void StoreParts(const vcl::TControl* control, const std::string& name, const TRound& round,
                  TParts& parts);
  void RestoreParts(vcl::TControl* control, const std::string& name, const TRound& round,
                    TParts& parts);
  void RestoreVisible(vcl::TControl* control, const std::string& name, const TRound& round);
  template <class T>
  T ReadOr(T current, T (TQELFormSaver::*read)(const std::string&, T), const std::string& ident);
  void RestoreForms();
  void StoreForms();
  void TellRefusal();
  void RestoreState(vcl::TForm* form, const TRound& round);

  std::unique_ptr<TQELDataStore> FFormStore;
  bool FStoreSize = true;
  bool FStoreLocation = true;
  bool FStoreState = true;
  bool FStoreVisible = true;
  bool FStoreControls = true;
  bool FKeepOnScreen = false;
  bool FQualifyNames = false;
  vcl::TForm* FForm;  // The owner; null when it is no form, and when that has gone.
  vcl::TNotifyEvent FPreviousOnShow;
  vcl::TCloseEvent FPreviousOnClose;
  TNormalBounds FNormalBounds{};
  bool FBoundsSaved = false;
  bool FUnreadable = false;  // What is being restored from.
};

}  // namespace qel
