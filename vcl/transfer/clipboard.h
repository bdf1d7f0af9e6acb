// The system's clipboard: text, HTML, pictures, files, components and bytes of any format.
#pragma once

#include "vcl/rtl/exceptions.h"
#include "vcl/transfer/dataobject.h"

namespace vcl {

/// The clipboard does not take what is put on it.
class VCL_API EClipboardError : public EInOutError {
 public:
  using EInOutError::EInOutError;
  ~EClipboardError() override;
};

/// Another window has had the clipboard open for too long.
class VCL_API EClipboardInUse : public EClipboardError {
 public:
  EClipboardInUse(const std::string& message, HWND window, DWORD process)
      : EClipboardError(message), FWindow(window), FProcess(process) {}
  ~EClipboardInUse() override;
  /// The window that has it; null when the system does not say.
  HWND Window() const { return FWindow; }
  /// The number of that window's process; 0 when the system does not say.
  DWORD Process() const { return FProcess; }

 private:
  HWND FWindow;
  DWORD FProcess;
};

/// The clipboard. Every call opens it for itself, and tries for its Patience when another program
/// has it; then raises EClipboardInUse, which names that one. What is put on it outlives
/// the program.
class VCL_API TClipboard : public TTransferData {
 public:
  /// Keeps the clipboard open until Close is called as many times: what is read meanwhile belongs
  /// together, and what is put on it stands side by side.
  void Open();
  void Close();
  /// For how many milliseconds it is tried; 200 at first.
  int Patience() const { return FPatience; }
  void SetPatience(int milliseconds) { FPatience = milliseconds; }

  std::vector<TTransferFormat> Formats() const override;
  /// Asks without opening the clipboard.
  bool HasFormat(TTransferFormat format) const override;
  std::optional<std::string> Bytes(TTransferFormat format) const override;

  void Clear();
  /// Puts all formats of the data on the clipboard, in place of what is there (see Open). When the
  /// system has no memory for them (EOutOfResources), the clipboard stays as it is.
  void Put(const TDataObject& data);
  // One kind alone; see TDataObject.
  void SetAsText(const std::string& text);
  void SetHtml(const THtmlPiece& piece);
  void SetFiles(const std::vector<std::string>& names);
  void SetPicture(const TGraphic& picture);
  void SetComponent(TComponent& component);
  void SetBytes(TTransferFormat format, const std::string& bytes);

 private:
  friend VCL_API TClipboard* Clipboard();
  TClipboard() = default;

  int FOpened = 0;
  int FPatience = 200;
  bool FEmptied = false;  // Since it was opened.
};

/// Has the clipboard open as long as it lives.
class VCL_API TClipboardTurn {
 public:
  TClipboardTurn();
  ~TClipboardTurn();
  TClipboardTurn(const TClipboardTurn&) = delete;
  TClipboardTurn& operator=(const TClipboardTurn&) = delete;
};

/// The one clipboard.
VCL_API TClipboard* Clipboard();

}  // namespace vcl
