// The list of the classes that every form file may name.
#include "vcl/forms/standardclasses.h"

#include "vcl/actions/actions.h"
#include "vcl/dialogs/dialogs.h"
#include "vcl/forms/frames.h"
#include "vcl/graphics/imagelist.h"
#include "vcl/grids/grids.h"
#include "vcl/menus/menus.h"
#include "vcl/printing/printing.h"
#include "vcl/rtl/classregistry.h"
#include "vcl/stdactions/stdactions.h"
#include "vcl/stdctrls/buttons.h"
#include "vcl/stdctrls/comctrls.h"
#include "vcl/stdctrls/extctrls.h"
#include "vcl/stdctrls/stdctrls.h"
#include "vcl/system/process.h"
#include "vcl/transfer/transfer.h"

namespace vcl {

void RegisterStandardClasses() {
  static const bool done = [] {
    RegisterClasses({&TBevel::Class(),      &TBitBtn::Class(),      &TButton::Class(),
                     &TCheckBox::Class(),   &TColorDialog::Class(), &TComboBox::Class(),
                     &TEdit::Class(),       &TFontDialog::Class(),  &TGroupBox::Class(),
                     &TImage::Class(),      &TImageList::Class(),   &TLabel::Class(),
                     &TListBox::Class(),    &TMainMenu::Class(),    &TMemo::Class(),
                     &TMenuItem::Class(),   &TOpenDialog::Class(),  &TPageControl::Class(),
                     &TPanel::Class(),      &TPopupMenu::Class(),   &TRadioButton::Class(),
                     &TSaveDialog::Class(), &TSpeedButton::Class(), &TStatusBar::Class(),
                     &TTabSheet::Class(),   &TTimer::Class(),       &TTrackBar::Class(),
                     &TTreeView::Class(),   &TFrame::Class()});
    RegisterClasses(
        {&TFlowPanel::Class(), &TGridPanel::Class(), &TScrollBox::Class(), &TSplitter::Class()});
    RegisterClasses({&TCheckListBox::Class(), &TDateTimePicker::Class(), &THotKey::Class(),
                     &TListView::Class(), &TMonthCalendar::Class(), &TPaintBox::Class(),
                     &TProcess::Class(), &TProgressBar::Class(), &TRadioGroup::Class(),
                     &TScrollBar::Class(), &TShape::Class(), &TStaticText::Class(),
                     &TUpDown::Class()});
    RegisterClasses({&TAnimate::Class(), &TColorBox::Class(), &TColorListBox::Class(),
                     &TLabeledEdit::Class(), &TMaskEdit::Class(), &TRichEdit::Class()});
    RegisterClasses({&TDrawGrid::Class(), &TStringGrid::Class()});
    RegisterClasses({&TCoolBar::Class(), &THeaderControl::Class(), &TTabControl::Class(),
                     &TToolBar::Class(), &TToolButton::Class()});
    RegisterClasses({&TClipboardMonitor::Class(), &TDropTarget::Class(), &TFindDialog::Class(),
                     &TReplaceDialog::Class(), &TPrintDialog::Class(),
                     &TPrinterSetupDialog::Class(), &TPageSetupDialog::Class(),
                     &TPrintPreview::Class()});
    RegisterClasses({&TAction::Class(), &TActionList::Class(), &TEditCopy::Class(),
                     &TEditCut::Class(), &TEditDelete::Class(), &TEditPaste::Class(),
                     &TEditSelectAll::Class(), &TEditUndo::Class(), &TFileExit::Class(),
                     &TFileOpen::Class(), &TFileSaveAs::Class(), &THelpContents::Class(),
                     &TWindowArrange::Class(), &TWindowCascade::Class(), &TWindowClose::Class(),
                     &TWindowMinimizeAll::Class(), &TWindowTileHorizontal::Class(),
                     &TWindowTileVertical::Class()});
    return true;
  }();
  static_cast<void>(done);
}

}  // namespace vcl
