execute_process(COMMAND ${QELREF} --json OUTPUT_VARIABLE json RESULT_VARIABLE result)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "qelref --json ended with ${result}")
endif()

# json_expect(VALUE path...): the JSON's value at the path, as text, is VALUE.
function(json_expect expected)
  string(JSON value GET "${json}" ${ARGN})
  if(NOT value STREQUAL expected)
    message(SEND_ERROR "${ARGN}: \"${value}\" instead of \"${expected}\"")
  endif()
endfunction()

# Sets `result` to the index of the element with that name in the array at the path.
function(json_find result name)
  string(JSON count LENGTH "${json}" ${ARGN})
  math(EXPR last "${count} - 1")
  foreach(i RANGE ${last})
    string(JSON value GET "${json}" ${ARGN} ${i} name)
    if(value STREQUAL name)
      set(${result} ${i} PARENT_SCOPE)
      return()
    endif()
  endforeach()
  message(FATAL_ERROR "There is no ${name} in ${ARGN}")
endfunction()

# expect_class(NAME ancestor page unit published...): the class and its properties, in this order.
function(expect_class name ancestor page unit)
  json_find(at ${name} classes)
  json_expect(${ancestor} classes ${at} ancestor)
  json_expect("${page}" classes ${at} page)
  json_expect(${unit} classes ${at} unit)
  set(names)
  string(JSON count LENGTH "${json}" classes ${at} published)
  if(count GREATER 0)
    math(EXPR last "${count} - 1")
    foreach(i RANGE ${last})
      string(JSON value GET "${json}" classes ${at} published ${i} name)
      list(APPEND names ${value})
    endforeach()
  endif()
  if(NOT names STREQUAL "${ARGN}")
    message(SEND_ERROR "${name} publishes ${names} instead of ${ARGN}")
  endif()
endfunction()

# expect_property(CLASS NAME kind type default stored)
function(expect_property class name kind type default stored)
  json_find(at ${class} classes)
  json_find(entry ${name} classes ${at} published)
  json_expect(${kind} classes ${at} published ${entry} kind)
  json_expect(${type} classes ${at} published ${entry} type)
  json_expect("${default}" classes ${at} published ${entry} default)
  json_expect(${stored} classes ${at} published ${entry} stored)
endfunction()

# expect_rows(LIST "member,member" row...): the list's objects, each as its members with a bar
# between them, are these rows in this order; a member that is a list has commas between its own.
function(expect_rows list members)
  string(REPLACE "," ";" members "${members}")
  string(JSON count LENGTH "${json}" ${list})
  math(EXPR last "${count} - 1")
  set(rows)
  foreach(i RANGE ${last})
    set(row)
    foreach(member IN LISTS members)
      string(JSON value GET "${json}" ${list} ${i} ${member})
      string(REGEX REPLACE "[][\"\n]" "" value "${value}")
      string(REGEX REPLACE " *, *" "," value "${value}")
      string(STRIP "${value}" value)
      list(APPEND row "${value}")
    endforeach()
    string(REPLACE ";" "|" row "${row}")
    list(APPEND rows "${row}")
  endforeach()
  if(NOT rows STREQUAL "${ARGN}")
    message(SEND_ERROR "${list} are\n${rows}\ninstead of\n${ARGN}")
  endif()
endfunction()

expect_rows(pages name,classes
  "QEL Controls/1|TQELBackground,TQELCheckbox,TQELRadiobutton,TQELLabel,TQELButton,TQELIEButton,TQELOfficeButton,TQELPanel,TQELGauge,TQELPresentation,TQELHint,TQELFillBackground,TQELArrowButton,TQELRoundButton,TQELHeader,TQELHeaderList"
  "QEL Controls/2|TQELColorCombo,TQELAnimator,TQELClipboard,TQELImageScroller,TQELScreenCanvas,TQELCommandLabel,TQELInformationLabel,TQELStickyLabel,TQELVersionLabel,TQELLookupMenu,TQELSpinEdit,TQELRealSpinEdit,TQELLookupEdit,TQELOfficeEdit,TQELOfficeEdit,TQELAnimator,TQELFontCombo,TQELFontBox,TQELCheckList"
  "QEL Controls/3|TQELLanguageCombo,TQELAutoCombo,TQELFormDivider"
  "QEL DBControls|TQELDBSearchForm,TQELDBLookupedit,TQELDBLabel,TQELDBNavigator,TQELDBPasswordDlg,TQELDBIndexLookup,TQELDBOfficeEdit,TQELDBAscii,TQELDBSpinEdit,TQELDBStickyLabel,TQELDBImageView,TQELDBMemoView"
  "QEL Dialogs|TQELPasswordDlg,TQELTipTricks,TQELMsgBox,TQELMsgDlg,TQELQueryAccess,TQELShellAbout,TQELSplashScreen,TQELMsgSelect,TQELFolderBrowser,TQELPageSetupDialog"
  "QEL System/1|TQELStoreData,TQELTimeTrigger,TQELApplication,TQELQuickMail,TQELResourceInfo,TQELSystemDetails,TQELSystemTray,TQELWavePlayer,TQELExitWindows,TQELJokeHolder,TQELFormSaver,TQELStringHolder,TQELDriveVolume,TQELScreenSaver,TQELMRUMenu,TQELIllegalAbort"
  "QEL System/2|TQELOnlyOne,TQELFormExplode,TQELTopMost,TQELTimer32,TQELFormSizes,TQELSystemMenu,TQELFormAspect,TQELWallPaper,TQELStartup,TQELVersionDetails,TQELFormHook,TQELPOPMail,TQELSMTPMail,TQELICQMarquee,TQELCDTriggers,TQELSystemKeys,TQELMouseController,TQELMapiMail"
  "QEL Files|TQELFileOperator,TQELTextFileView,TQELDroppedFiles,TQELLogFile,TQELTextReplace,TQELFileCollector,TQELFileLabel3D,TQELFileProperties,TQELFileExecute,TQELFileCombo,TQELDriveCombo,TQELFolderListbox,TQELIconCombo,TQELIconListbox,TQELExplorerView,TQELExplorerTree,TQELFileLookup,TQELFileLabel")
set(dialog "dialog,read-only")
set(list "value list,multi-select,sorted list")
expect_rows(propertyEditors editor,type,class,property,attributes
  "TQELAttachmentProperty|TQELAttachments|TQELMessage|Attachments|${dialog}"
  "TQELInetProperty|TQELMessages|TQELSMTPMail|Messages|${dialog}"
  "TQELInetProperty|TQELMessages|TQELPOPMail|Messages|${dialog}"
  "TQELMapiAttachmentProperty|TQELMapiAttachments|TQELMapiMessage|Attachments|${dialog}"
  "TQELMapiProperty|TQELMapiMessages|TQELMapiMail|Messages|${dialog}"
  "TQELColorInBetweenProperty|TStrings|TQELGradient|ColorsInBetween|${dialog}"
  "TQELItemDataFieldProperty|string|TCollectionItem|DataField|${list}"
  "TQELROStringProperty|string|TQELDriveVolume||multi-select,read-only,revertable"
  "TQELROStringProperty|string|TQELInformationLabel|CaptionValue|multi-select,read-only,revertable"
  "TQELROCaptionProperty|TCaption|TQELInformationLabel|Caption|multi-select,auto-update,read-only,revertable"
  "TQELROBooleanproperty|Boolean|TQELDriveVolume||value list,multi-select,sorted list,read-only,revertable"
  "TQELROIntegerProperty|Integer|TQELDriveVolume||multi-select,read-only,revertable"
  "TQELShowMeNowProperty|string|TComponent|DesignExecute|${dialog}"
  "TQELHintProperty|string|TComponent|Hint|dialog,multi-select,revertable"
  "TQELCaptionProperty|TCaption|TControl|Caption|dialog,multi-select,auto-update,revertable"
  "TQELAboutCompsProperty|TQELAbout|TPersistent||${dialog}"
  "TQELDataFieldProperty|string|TComponent|DataUsername|${list}"
  "TQELDataFieldProperty|string|TComponent|Datapassword|${list}"
  "TQELSlidesProperty|TQELSlides|TQELPresentation|Slides|${dialog}"
  "TQELFilenameProperty|string|TQELIconCombo|Filename|dialog"
  "TQELFilenameProperty|string|TQELIconListbox|Filename|dialog"
  "TQELFilenameProperty|string|TQELFileLabel|Filename|dialog"
  "TQELFilenameProperty|string|TQELFileProperties|Filename|dialog"
  "TQELAviFilenameProperty|string|TQELAnimator|Filename|dialog"
  "TQELINIFilenameProperty|string|TQELStoreData|Filename|dialog"
  "TQELWaveFilenameProperty|string|TQELWavePlayer|WaveFile|dialog"
  "TQELWaveFilenameProperty|string|TQELICQMarquee|Filename|dialog"
  "TQELBitmapFilenameProperty|string|TQELWallPaper|Filename|dialog"
  "TQELLogFilenameProperty|string|TQELLogFile|LogFile|dialog"
  "TQELFilenameProperty|string|TQELVersionLabel|Filename|dialog"
  "TQELROCaptionProperty|TCaption|TQELVersionLabel|Caption|multi-select,auto-update,read-only,revertable"
  "TQELLocaleProperty|string|TQELLanguageCombo|Locale|${list}"
  "TQELROCaptionProperty|TCaption|TQELDBLabel|Caption|multi-select,auto-update,read-only,revertable"
  "TQELROCaptionProperty|TCaption|TQELDBStickyLabel|Caption|multi-select,auto-update,read-only,revertable"
  "TQELROCaptionProperty|TCaption|TQELDBOfficeEdit|Text|multi-select,auto-update,read-only,revertable"
  "TQELROCaptionProperty|TCaption|TQELDBLookupedit|Text|multi-select,auto-update,read-only,revertable"
  "TQELHintProperty|string|TQELMsgDlg|Text|dialog,multi-select,revertable"
  "TQELHintProperty|string|TQELMsgSelect|Text|dialog,multi-select,revertable"
  "TQELFilenameProperty|string|TQELTipTricks|Filename|dialog"
  "TQELDataFieldProperty|string|TQELDBSearchForm|DefaultField|${list}"
  "TQELCodeProperty|string|TQELQueryAccess|Code|dialog,revertable"
  "TQELFilenameProperty|string|TQELVersionDetails|Filename|dialog"
  "TQELROCaptionProperty|TCaption|TQELFileLabel|Caption|multi-select,auto-update,read-only,revertable"
  "TQELFilenameProperty|string|TQELFileExecute|Filename|dialog")
expect_rows(componentEditors editor,class,verbs
  "TQELDialogEditor|TQELExecComponent|Execute the Component,QEL component library,2026"
  "TQELMailConfigEditor|TQELMailHost|Configure Mail ..."
  "TQELMailConfigEditor|TQELMapiMail|Configure Mail ...")

expect_class(TQELComponent TComponent "" Qelclasses About)
expect_class(TQELExecComponent TQELComponent "" Qelclasses DesignExecute)
expect_class(TQELCustomDialog TQELExecComponent "" Qelclasses Sound)
expect_class(TQELFrame TGraphicsObject "" Qelclasses
  FrameStyle Highlight Shadow Solid Offset FrameWidth)
expect_class(TQELButton TQELCustomButton "QEL Controls/1" Qeltbutton
  About Font3D Glyph Enabled ParentShowHint ShowHint Font Visible Caption WordWrap ButtonSunk
  Background OnClick DragCursor DragMode ParentFont PopupMenu TabOrder TabStop OnDragDrop OnDragOver
  OnEndDrag OnKeyDown OnKeyPress OnKeyUp OnMouseDown OnMouseMove OnMouseUp OnEnter OnExit
  OnStartDrag)
expect_class(TQELLabel TQELCustomLabel "QEL Controls/1" Qeltlabel
  About Align Alignment Caption Color Enabled FocusControl FontBackground Font Font3D Frame
  Background Transparent ShowHint Visible WordWrap OnClick OnDblClick OnMouseDown OnMouseMove
  OnMouseUp OnDragDrop OnEndDrag OnStartDrag OnDragOver DragCursor DragMode ParentColor ParentFont
  ShowAccelChar)

expect_class(TQELGauge TQELGraphicControl "QEL Controls/1" Qeltgauge
  Align Cursor Glyph OnClick OnDblClick OnMouseDown OnMouseMove OnMouseUp Font Font3D Background
  BevelInner BevelOuter PicturePosition Borderwidth Kind SegmentGap SegmentWidth SegmentColor
  InsideBackColor Percentage Width Height)
expect_class(TQELHint TQELComponent "QEL Controls/1" Qelthint
  Font3D Speechbubble Shadow HintDirection UnUsedHintColor HintShadowColor HintFont HintPauseTime
  OnSelectHintDirection Background)
expect_class(TQELTimer32 TQELComponent "QEL System/2" Qelclasses2 Enabled Interval OnTimer Priority)
expect_class(TQELButtonDetails TPersistent "" Qelclasses2
  Glyph Visible Enabled ConfirmOnPress ConfirmMessage Caption Hint ShowHint)
expect_class(TQELSpinEdit TQELCustomSpinEdit "QEL Controls/2" Qeltspinedit About)
expect_class(TQELCustomSpinEdit TQELCustomStepEdit "" Qeltspinedit
  AutoSelect AutoSize Color Ctl3D ButtonColor ArrowColor DragCursor DragMode Enabled Font
  ImeMode ImeName MaxLength ParentColor ParentCtl3D ParentFont ParentShowHint PopupMenu ShowHint
  TabOrder TabStop Visible CutandPaste LineSize MaxValue MinValue MultipleLineSize Readonly Value
  OnChange OnClick OnDblClick OnDragDrop OnDragOver OnEndDrag OnEnter OnExit OnKeyDown OnKeyPress
  OnKeyUp OnMouseDown OnMouseMove OnMouseUp)

# What the headers say.
json_find(gauge TQELGauge classes)
json_find(color SegmentColor classes ${gauge} published)
json_expect("The colour of the segments." classes ${gauge} published ${color} sentence)
# What an ancestor has described.
json_find(align Align classes ${gauge} published)
json_expect("Keeps the control along an edge of its parent, or over all that the others leave."
            classes ${gauge} published ${align} sentence)
# A class of the class library.
json_find(timer TTimer classes)
json_expect(TComponent classes ${timer} ancestor)
json_expect(vcl/stdctrls/extctrls.h classes ${timer} header)

expect_property(TQELExecComponent DesignExecute string string "" OFF)
expect_property(TQELCustomDialog Sound enumeration TQELBeeptype bNone ON)
expect_property(TQELGlyph NumGlyphs integer TQELNumGlyphs 0 ON)
expect_property(TQELGlyph TransparentColor color TColor "" ON)
expect_property(TQELButton TabStop boolean Boolean False ON)
expect_property(TQELButton DragCursor integer TCursor crDrag ON)
expect_property(TQELButton Background component TQELBackground "" ON)
expect_property(TQELButton OnClick event TNotifyEvent "" ON)
expect_property(TQELButton Caption string TCaption "" ON)
expect_property(TQELLabel Frame class TQELFrame "" ON)
expect_property(TQELTexture TransparentColor color TColor clNone ON)
expect_property(TQELTimer32 Interval integer Word 1000 ON)
