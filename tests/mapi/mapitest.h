// What the tests of the system's mail share: the provider in the place of the system's library.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/mail/mailtest.h"
#include "tests/mapi/provider/provider.h"
#include "tests/support/importpatch.h"
#include "vcl/rtl/utf16.h"

struct TMapiTest : testing::Test {
  TMapiTest() {
    Provider() = {};
    Loads.clear();
    HasLibrary = true;
  }
  ~TMapiTest() override {
    EXPECT_EQ(Provider().Blocks, 0) << "memory of the provider was not freed";
    EXPECT_EQ(Provider().WrongFrees, 0);
    EXPECT_EQ(Loaded, 0) << "the library was not released";
  }

  static HMODULE WINAPI LoadProvider(LPCWSTR name) {
    Loads.push_back(vcl::ToUtf8(name) + ' ' + std::to_string(::GetErrorMode()));
    if (!HasLibrary) return nullptr;
    ++Loaded;
    return ::LoadLibraryW(L"mapiprovider.dll");
  }
  static BOOL WINAPI Release(HMODULE module) {
    --Loaded;
    return ::FreeLibrary(module);
  }
  /// What has been written down since it was last asked.
  static std::vector<std::string> Calls() { return std::exchange(Provider().Calls, {}); }

  /// The names that were to be loaded, with the system's error mode meanwhile.
  static inline std::vector<std::string> Loads;
  static inline int Loaded = 0;
  static inline bool HasLibrary = true;
  TTestApplication Application;
  TImportPatch Loading{"qel.dll", "LoadLibraryW", &LoadProvider};
  TImportPatch Releasing{"qel.dll", "FreeLibrary", &Release};
};
