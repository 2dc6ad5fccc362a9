// Values between COM and the logic.
#include "com/value.h"

#include <cstring>

#include "com/objects.h"
#include "com/pictures.h"
#include "com/texts.h"
#include "runtime/code_page.h"
#include "tests/com/scripted_test.h"

namespace corvane::com {
namespace {

using host::Variant;

class Values : public ScriptedTest {
 protected:
  static Value OfType(VARTYPE type, const wchar_t* text) {
    Value from(ToAnsi(std::wstring_view(text))), value;
    EXPECT_EQ(VariantChangeType(value.Out(), from.In(), 0, type), S_OK) << type;
    return value;
  }
};

// One pixel, two colours.
std::string Bitmap() {
  std::string bytes("BM\x42\0\0\0\0\0\0\0\x3E\0\0\0\x28\0\0\0\1\0\0\0\1\0\0\0\1\0\1\0", 30);
  bytes.resize(0x36);
  bytes += std::string("\0\0\0\0\xFF\xFF\xFF\0\x80\0\0\0", 12);
  return bytes;
}

TEST_F(Values, NumbersOfEveryWidthAreNumbers) {
  for (VARTYPE type : {VT_I1, VT_I2, VT_I4, VT_INT, VT_UI1, VT_UI2}) {
    const Value value = OfType(type, L"7");
    EXPECT_EQ(ToVariant(value), Variant(7L)) << type;
    EXPECT_EQ(value.ToLong(), 7) << type;
  }
  EXPECT_EQ(ToVariant(OfType(VT_R8, L"2")), Variant(2.0));
  EXPECT_EQ(ToVariant(OfType(VT_CY, L"2")), Variant(2.0));
}

TEST_F(Values, AColourKeepsItsHighBit) {
  Value colour;
  const_cast<VARIANT&>(colour.Get()).vt = VT_UI4;
  const_cast<VARIANT&>(colour.Get()).ulVal = 0x8000000F;
  EXPECT_EQ(ToVariant(colour), Variant(static_cast<long>(0x8000000F)));
}

TEST_F(Values, ASingleIsItsSevenDigits) {
  Value single;
  VARIANT* raw = single.Out();
  raw->vt = VT_R4;
  raw->fltVal = 0.1f;
  EXPECT_EQ(ToVariant(single), Variant(0.1));
  raw->fltVal = 8.25f;
  EXPECT_EQ(ToVariant(single), Variant(8.25));
}

TEST_F(Values, TextsAndBooleansAndNothing) {
  EXPECT_EQ(ToVariant(Value(std::string("a\0b", 3))), Variant(std::string("a\0b", 3)));
  EXPECT_EQ(ToVariant(Value(true)), Variant(true));
  EXPECT_EQ(ToVariant(Value()), Variant());
  EXPECT_EQ(ToVariant(Value(static_cast<IDispatch*>(nullptr))), Variant());
  Value null;
  null.Out()->vt = VT_NULL;
  EXPECT_EQ(ToVariant(null), Variant());
}

TEST_F(Values, AReferenceIsWhatItRefersTo) {
  long number = 12;
  EXPECT_EQ(ToVariant(Value(&number)), Variant(12L));
  Value inner(std::string("x")), outer;
  outer.Out()->vt = VT_BYREF | VT_VARIANT;
  const_cast<VARIANT&>(outer.Get()).pvarVal = inner.In();
  EXPECT_EQ(ToVariant(outer), Variant(std::string("x")));
  const_cast<VARIANT&>(outer.Get()).vt = VT_EMPTY;
}

TEST_F(Values, AnArrayAndAMissingArgumentAreTypeMismatches) {
  Value array;
  SAFEARRAY* made = SafeArrayCreateVector(VT_VARIANT, 0, 2);
  VARIANT* raw = array.Out();
  raw->vt = VT_ARRAY | VT_VARIANT;
  raw->parray = made;
  EXPECT_EQ(ErrorOf([&] { ToVariant(array); }), 13);
  EXPECT_EQ(ErrorOf([&] { ToVariant(Value(Missing())); }), 13);
}

TEST_F(Values, WhatIsReadIsReadByTheRulesOfVisualBasic) {
  EXPECT_EQ(Value(std::string("12")).ToLong(), 12);
  EXPECT_EQ(Value(2.5).ToLong(), 2);
  EXPECT_EQ(Value(3.5).ToLong(), 4);
  EXPECT_EQ(Value(7L).ToText(), "7");
  EXPECT_EQ(Value().ToText(), "");
  EXPECT_TRUE(Value(5L).ToBool());
  EXPECT_EQ(ErrorOf([] { Value(std::string("wide")).ToLong(); }), 13);
  EXPECT_EQ(ErrorOf([] { Value(1e10).ToLong(); }), 6);
}

TEST_F(Values, GoTheWayBack) {
  for (const Variant& value : {Variant(), Variant(true), Variant(-5L), Variant(2.5), Variant(std::string("\xC4 x"))})
    EXPECT_EQ(ToVariant(FromVariant(value)), value);
}

TEST_F(Values, AnObjectIsItsPropertiesAndComesBackAsItself) {
  const Variant value = ToVariant(Of(object_));
  ASSERT_TRUE(std::dynamic_pointer_cast<host::Properties>(std::get<std::shared_ptr<runtime::Object>>(value)));
  EXPECT_EQ(FromVariant(value).ToObject().Get(), object_.Get());
}

TEST_F(Values, APictureIsTheBytesOfItsFile) {
  const auto picture = std::make_shared<runtime::Picture>(runtime::Picture{Bitmap()});
  const Value value = FromVariant(runtime::PictureRef(picture));
  ASSERT_TRUE(value.ToObject().As<IPicture>());
  const Variant back = ToVariant(value);
  ASSERT_TRUE(std::holds_alternative<runtime::PictureRef>(back));
  EXPECT_EQ(std::get<runtime::PictureRef>(back)->bytes.substr(0, 2), "BM");
  EXPECT_EQ(std::get<runtime::PictureRef>(back)->bytes, Bitmap());
}

TEST_F(Values, WhatIsNoPictureIsError481) {
  EXPECT_EQ(ErrorOf([] { NewPicture(runtime::Picture{"no picture"}); }), 481);
  EXPECT_EQ(ErrorOf([] { NewPicture(runtime::Picture{}); }), 481);
  EXPECT_EQ(FromVariant(runtime::PictureRef()).ToObject().Get(), nullptr);
}

TEST_F(Values, TextsFollowTheCodePage) {
  EXPECT_EQ(ToWide("\x80 \xE4"), L"\u20AC \u00E4");
  EXPECT_EQ(ToAnsi(std::wstring_view(L"\u20AC \u00E4")), "\x80 \xE4");
  EXPECT_EQ(ToAnsi(std::wstring_view(L"\u221E")), "?") << "never a digit that looks alike";
  EXPECT_EQ(TextOf(nullptr), "");
  runtime::SetAnsiCodePage(1251);
  EXPECT_EQ(ToWide("\xC6"), L"\u0416");
  EXPECT_EQ(ToAnsi(std::wstring_view(L"\u0416")), "\xC6");
  runtime::SetAnsiCodePage(1252);
}

}  // namespace
}  // namespace corvane::com
