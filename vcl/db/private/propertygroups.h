// What data sets publish together, for `Inherit` in their tables.
#pragma once

namespace vcl {

inline constexpr const char* DataSetView[] = {"AutoCalcFields", "Filter", "FilterOptions",
                                              "Filtered", "MasterSource"};

inline constexpr const char* DataSetEvents[] = {
    "BeforeOpen",   "AfterOpen",      "BeforeClose",  "AfterClose",   "BeforeInsert",
    "AfterInsert",  "BeforeEdit",     "AfterEdit",    "BeforePost",   "AfterPost",
    "BeforeCancel", "AfterCancel",    "BeforeDelete", "AfterDelete",  "BeforeScroll",
    "AfterScroll",  "BeforeRefresh",  "AfterRefresh", "OnCalcFields", "OnDeleteError",
    "OnEditError",  "OnFilterRecord", "OnNewRecord",  "OnPostError"};

}  // namespace vcl
