// Image lists and icons.
#include "host/rtl/exceptions.h"
#include "host/rtl/reader.h"
#include "host/rtl/streams.h"
#include "host/rtl/writer.h"
#include "host/vcl/imagelist.h"
#include "tests/support/handles.h"
#include "tests/vcl/graphics_pixels.h"

namespace vcl::test {
namespace {

/// Draws image `index` of the list on yellow.
Rows Drawn(TImageList& list, int index) {
  TBitmap bitmap;
  list.GetBitmap(index, &bitmap, clYellow);
  return Letters(bitmap);
}

void AddTwo(TImageList& list) {
  TBitmap strip;
  Paint(strip, {"RFFBFB", "FRFFKF", "FFRBFB"});
  const int first = list.Count();
  EXPECT_EQ(list.AddMasked(&strip, clFuchsia), first);
  EXPECT_EQ(Letters(strip)[0], "RFFBFB") << "the bitmap stays as it was";
}
const Rows First = {"RYY", "YRY", "YYR"};
const Rows Second = {"BYB", "YKY", "BYB"};

TEST(ImageList, MaskedPicturesLeaveTheirColorOut) {
  TImageList list(nullptr, 3, 3);
  AddTwo(list);
  ASSERT_EQ(list.Count(), 2);
  EXPECT_EQ(Drawn(list, 0), First);
  EXPECT_EQ(Drawn(list, 1), Second);

  TBitmap bitmap;
  Paint(bitmap, {"GGGGG", "GGGGG", "GGGGG", "GGGGG"});
  list.Draw(bitmap.Canvas(), 1, 1, 0);
  list.Draw(bitmap.Canvas(), 0, 0, 2);
  list.Draw(bitmap.Canvas(), 0, 0, -1);
  EXPECT_EQ(Letters(bitmap), (Rows{"GGGGG", "GRGGG", "GGRGG", "GGGRG"}));
}

TEST(ImageList, AddsByMaskAndWithoutOne) {
  TImageList list(nullptr, 2, 1);
  TBitmap image;
  Paint(image, {"RB"});
  TBitmap mask;
  Paint(mask, {"K."});
  EXPECT_EQ(list.Add(&image, &mask), 0);
  EXPECT_EQ(list.Add(&image, nullptr), 1);
  EXPECT_EQ(Drawn(list, 0), Rows{"RY"});
  EXPECT_EQ(Drawn(list, 1), Rows{"RB"});
}

TEST(ImageList, RefusesWhatHoldsNoPicture) {
  TImageList list(nullptr, 3, 3);
  TBitmap narrow(2, 3);
  TBitmap empty;
  EXPECT_THROW(list.AddMasked(&narrow, clWhite), EInvalidOperation);
  EXPECT_THROW(list.Add(&empty, nullptr), EInvalidOperation);
  EXPECT_THROW(list.Add(nullptr, nullptr), EInvalidOperation);
  EXPECT_THROW(list.Delete(0), EArgumentOutOfRangeException);
  EXPECT_THROW(list.SetWidth(0), EInvalidOperation);
  EXPECT_EQ(list.Count(), 0);
}

TEST(ImageList, DeletesCopiesAndClears) {
  TImageList list(nullptr, 3, 3);
  int changes = 0;
  list.OnChange = [&](TObject*) { ++changes; };
  AddTwo(list);
  TImageList copy(nullptr);
  copy.Assign(&list);
  list.Delete(0);
  EXPECT_EQ(changes, 2);
  EXPECT_EQ(list.Count(), 1);
  EXPECT_EQ(Drawn(list, 0), Second);
  EXPECT_EQ(copy.Count(), 2);
  EXPECT_EQ(copy.Width(), 3);
  EXPECT_EQ(Drawn(copy, 0), First);
  list.Clear();
  EXPECT_EQ(list.Count(), 0);
  copy.SetWidth(4);
  EXPECT_EQ(copy.Count(), 0) << "pictures of another size are none of the list's";
}

TEST(ImageList, BackgroundFillsTheHoles) {
  TImageList list(nullptr, 3, 3);
  AddTwo(list);
  list.SetBkColor(clLime);
  TBitmap bitmap(3, 3);
  list.Draw(bitmap.Canvas(), 0, 0, 0);
  EXPECT_EQ(Letters(bitmap), (Rows{"RGG", "GRG", "GGR"}));
}

TEST(ImageList, DisabledPicturesAreEmbossed) {
  TImageList list(nullptr, 4, 4);
  TBitmap image;
  Paint(image, {"KFFF", "FFFF", "FF.F", "FFFF"});
  list.AddMasked(&image, clFuchsia);
  TBitmap bitmap;
  Paint(bitmap, {"GGGG", "GGGG", "GGGG", "GGGG"});
  list.Draw(bitmap.Canvas(), 1, 1, 0, false);
  TBitmap expected;
  Paint(expected, {"GGGG", "GGGG", "GGGG", "GGGG"});
  expected.Canvas()->SetPixel(1, 1, clBtnShadow);
  expected.Canvas()->SetPixel(2, 2, clBtnHighlight);
  for (int y = 0; y < 4; ++y) {
    for (int x = 0; x < 4; ++x) {
      EXPECT_EQ(bitmap.Canvas()->Pixels(x, y), expected.Canvas()->Pixels(x, y)) << x << ", " << y;
    }
  }
}

TEST(ImageList, FormFileKeepsThePictures) {
  TImageList list(nullptr, 3, 3);
  AddTwo(list);
  TStringStream stream;
  TWriter(stream).WriteRootComponent(&list);
  stream.SetPosition(0);
  TImageList read(nullptr);
  TReader(stream).ReadRootComponent(&read);
  ASSERT_EQ(read.Count(), 2);
  EXPECT_EQ(Drawn(read, 0), First);
  EXPECT_EQ(Drawn(read, 1), Second);

  for (std::size_t cut = 5; cut < 200; cut += 13) {
    const std::string& whole = stream.DataString();
    TStringStream spoilt(whole.substr(0, whole.size() - cut));
    TImageList kept(nullptr, 3, 3);
    EXPECT_ANY_THROW(TReader(spoilt).ReadRootComponent(&kept)) << cut;
    EXPECT_EQ(kept.Count(), 0);
  }
}

// ---- Icons ----

TEST(Icon, IsTheSameAfterAFile) {
  TImageList list(nullptr, 3, 3);
  AddTwo(list);
  TIcon icon;
  list.GetIcon(1, &icon);
  EXPECT_EQ(icon.Size(), (TSize{3, 3}));
  TStringStream stream("..");
  stream.SetPosition(2);
  icon.SaveToStream(stream);
  stream.WriteText("behind");
  stream.SetPosition(2);
  TIcon read;
  read.LoadFromStream(stream);
  EXPECT_EQ(stream.ReadRest(), "behind");
  EXPECT_EQ(read.Size(), (TSize{3, 3}));
  TBitmap bitmap;
  Paint(bitmap, {"YYY", "YYY", "YYY"});
  bitmap.Canvas()->Draw(0, 0, &read);
  EXPECT_EQ(Letters(bitmap), Second);
  TBitmap assigned;
  assigned.Assign(&read);
  EXPECT_EQ(Letters(assigned), (Rows{"B.B", ".K.", "B.B"}));
  TIcon copy;
  copy.Assign(&read);
  EXPECT_EQ(copy.Width(), 3);
  EXPECT_TRUE(copy.Handle());
}

TEST(Icon, ShowsTheImageNearestTheWantedSize) {
  TBitmap picture(48, 48);
  TImageList list(nullptr, 48, 48);
  list.AddMasked(&picture, clFuchsia);
  TIcon large;
  list.GetIcon(0, &large);
  TBitmap smallPicture(16, 16);
  TImageList smallList(nullptr, 16, 16);
  smallList.AddMasked(&smallPicture, clFuchsia);
  TIcon little;
  smallList.GetIcon(0, &little);
  TStringStream a;
  TStringStream b;
  large.SaveToStream(a);
  little.SaveToStream(b);

  // One file of the two images.
  std::string first = a.DataString();
  std::string second = b.DataString();
  const auto offset = [](std::string& file, std::size_t value) {
    for (std::size_t i = 0; i < 4; ++i)
      file[18 + i] = static_cast<char>(value >> 8 * i);
  };
  offset(first, 38);
  offset(second, 38 + first.size() - 22);
  const std::string file = std::string("\0\0\1\0\2\0", 6) + first.substr(6, 16) +
                           second.substr(6, 16) + first.substr(22) + second.substr(22);
  TIcon icon;
  TStringStream stream(file);
  icon.LoadFromStream(stream);
  for (const auto& [wanted, shown] : {std::pair(16, 16), {20, 16}, {40, 48}, {64, 48}}) {
    icon.SetSize(wanted, wanted);
    EXPECT_EQ(icon.Width(), shown) << wanted;
    EXPECT_TRUE(icon.Handle());
    EXPECT_EQ(icon.Width(), shown) << wanted;
  }
}

TEST(Icon, RefusesDamagedFilesAndKeepsTheOldOne) {
  TImageList list(nullptr, 3, 3);
  AddTwo(list);
  TIcon icon;
  list.GetIcon(0, &icon);
  TStringStream good;
  icon.SaveToStream(good);
  const auto spoilt = [&](std::size_t at, char value) {
    std::string file = good.DataString();
    file[at] = value;
    return file;
  };
  const std::string files[] = {"",
                               std::string(6, '\0'),
                               spoilt(2, 2),
                               spoilt(4, 0),
                               spoilt(4, 9),
                               spoilt(18, 3),
                               spoilt(11 + 6, '\x7F'),
                               spoilt(14, 0) /* smaller */,
                               spoilt(22, 99),
                               good.DataString().substr(0, good.DataString().size() - 1)};
  const HICON before = icon.Handle();
  for (const std::string& file : files) {
    if (file == good.DataString()) continue;
    TStringStream stream(file);
    EXPECT_THROW(icon.LoadFromStream(stream), EInvalidGraphic) << &file - files;
    EXPECT_EQ(icon.Handle(), before);
  }
}

TEST(ImageList, ThousandsOfUsesKeepNoHandle) {
  TBitmap bitmap(8, 8);
  const auto use = [&] {
    TImageList list(nullptr, 3, 3);
    AddTwo(list);
    list.Draw(bitmap.Canvas(), 0, 0, 0);
    list.Draw(bitmap.Canvas(), 0, 0, 1, false);
    TIcon icon;
    list.GetIcon(0, &icon);
    TStringStream stream;
    icon.SaveToStream(stream);
    stream.SetPosition(0);
    TIcon read;
    read.LoadFromStream(stream);
    bitmap.Canvas()->Draw(0, 0, &read);
  };
  for (int i = 0; i < 5; ++i)
    use();
  FreeDeviceContexts();
  const int gdi = handles::GdiObjects();
  const int user = handles::UserObjects();
  for (int i = 0; i < 1000; ++i)
    use();
  FreeDeviceContexts();
  EXPECT_EQ(handles::GdiObjects(), gdi);
  EXPECT_EQ(handles::UserObjects(), user);
}

}  // namespace
}  // namespace vcl::test
