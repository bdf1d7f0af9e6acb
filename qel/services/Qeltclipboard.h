// TQELClipboard: the clipboard as a component, with what was on it before.
#pragma once

#include <deque>
#include <memory>
#include <string>
#include <vector>

#include "qel/core/Qelcomponent.h"
#include "vcl/transfer/clipboardmonitor.h"
#include "vcl/transfer/dataobject.h"

namespace qel {

/// Tells of the clipboard's changes, keeps what was on it, and reads and writes it. A clipboard
/// that another program has open is tried for a tenth of a second; then vcl::EClipboardError is
/// raised.
///
/// What was on it is kept in memory only: text, HTML, pictures and names of files. What its owner
/// marks as not for histories (the formats ExcludeClipboardContentFromMonitorProcessing and
/// CanIncludeInClipboardHistory of the Win32 documentation), such as a password, is not.
class QEL_API TQELClipboard : public TQELComponent {
 public:
  explicit TQELClipboard(vcl::TComponent* owner);
  ~TQELClipboard() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// The text, whose lines end with LF here; empty when there is none. Setting it puts it in place
  /// of what is there.
  std::string AsText() const;
  void SetAsText(const std::string& text);
  /// Puts the picture into `picture`; false, and nothing changes, when there is none.
  bool AsPicture(vcl::TPicture& picture) const;
  void SetAsPicture(const vcl::TGraphic& picture);
  /// The names of the files, with their folders.
  std::vector<std::string> Files() const;
  void SetFiles(const std::vector<std::string>& names);
  /// The names of the formats that are there, the most telling one first. Asks without opening it.
  std::vector<std::string> Formats() const;
  /// Whether the format is there: "Text", "Picture", "Files" or a registered name.
  bool Has(const std::string& format) const;
  void Clear();

  /// How many earlier contents are kept now.
  int Kept() const { return static_cast<int>(FHistory.size()); }
  /// One of them, 0 being the latest. Raises EListError outside. Valid until the next change.
  const vcl::TTransferData& History(int index) const;
  /// Puts it on the clipboard again.
  void Recall(int index);
  void ClearHistory() { FHistory.clear(); }

  bool Active() const { return FMonitor->Enabled(); }
  /// False: nothing is told or kept.
  void SetActive(bool active) { FMonitor->SetEnabled(active); }
  int HistoryCount() const { return FHistoryCount; }
  /// How many contents are kept at most, from 0 to 1000; nothing else is taken.
  void SetHistoryCount(int count);

  /// Something else is on the clipboard, whoever has put it there.
  vcl::TNotifyEvent OnChange;

 private:
  void Changed();
  void Keep();

  std::unique_ptr<vcl::TClipboardMonitor> FMonitor;
  std::deque<vcl::TDataObject> FHistory;
  int FHistoryCount = 0;
};

}  // namespace qel
