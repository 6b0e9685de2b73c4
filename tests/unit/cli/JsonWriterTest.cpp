#include <gtest/gtest.h>
#include <rapidjson/document.h>

#include <cstdlib>
#include <limits>

#include "cli/JsonWriter.h"
#include "platform/Utf8.h"

namespace brask {
namespace {

// What `write` sends to a file.
template <class Write>
std::string Written(Write write) {
    char* bytes = nullptr;
    std::size_t length = 0;
    std::FILE* file = open_memstream(&bytes, &length);
    OutputBuffer out(file);
    write(out);
    EXPECT_TRUE(out.Finish().Ok());
    std::fclose(file);
    std::string text(bytes, length);
    std::free(bytes);
    return text;
}

TEST(JsonWriterTest, SeparatesKeysAndValues) {
    const std::string text = Written([](OutputBuffer& out) {
        JsonWriter json(out);
        json.BeginObject();
        json.NullMember("none");
        json.Key("list");
        json.BeginArray();
        json.BeginObject();
        json.EndObject();
        json.BeginArray();
        json.EndArray();
        json.Integer(-7);
        json.EndArray();
        json.Member("texts", std::vector<std::string>{"a", "b"});
        json.EndObject();
    });
    EXPECT_EQ(text, R"({"none":null,"list":[{},[],-7],"texts":["a","b"]})");
}

TEST(JsonWriterTest, EveryTextIsValid) {
    struct Case {
        std::string_view Text;
        std::string_view Json;
    };
    using std::string_view_literals::operator""sv;
    const Case cases[] = {
        {"plain", R"("plain")"},
        {"a\"b\\c/d", R"("a\"b\\c/d")"},
        {"\r\n\t", R"("\r\n\t")"},
        {"\0\x1B\x1F\x7F"sv, "\"\\u0000\\u001b\\u001f\x7F\""},
        {"°C, 日本, \U0001F600", "\"°C, 日本, \U0001F600\""},
        {"\xB0 cut \xE2\x82", "\"\xEF\xBF\xBD cut \xEF\xBF\xBD\xEF\xBF\xBD\""},
        {"\xC0\xAF", "\"\xEF\xBF\xBD\xEF\xBF\xBD\""},                  // overlong "/"
        {"\xED\xA0\x80", "\"\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\""},  // half a surrogate pair
        {"\xF4\x90\x80\x80", "\"\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\""},  // too high
    };
    for (const Case& c : cases) {
        EXPECT_EQ(Written([&](OutputBuffer& out) { JsonWriter(out).String(c.Text); }), c.Json);
    }
}

TEST(JsonWriterTest, NumbersReadBackExactly) {
    const double values[] = {0.1,
                             38078.041666666664,
                             9.0 / 5.0 * 26.1 + 32.0,
                             1e21,
                             -0.0,
                             std::numeric_limits<double>::denorm_min(),
                             std::numeric_limits<double>::max()};
    const std::string text = Written([&](OutputBuffer& out) {
        JsonWriter json(out);
        json.BeginObject();
        json.Member("values", values);
        json.Member("infinite", std::numeric_limits<double>::infinity());
        json.Member("none", std::numeric_limits<double>::quiet_NaN());
        json.EndObject();
    });
    rapidjson::Document document;
    document.Parse<rapidjson::kParseFullPrecisionFlag>(text.c_str());
    ASSERT_FALSE(document.HasParseError()) << text;
    for (rapidjson::SizeType i = 0; i < std::size(values); ++i) {
        EXPECT_EQ(document["values"][i].GetDouble(), values[i]);
    }
    EXPECT_TRUE(document["infinite"].IsNull());
    EXPECT_TRUE(document["none"].IsNull());
}

TEST(OutputBufferTest, KeepsTheFirstFailure) {
    std::FILE* full = std::fopen("/dev/full", "w");
    ASSERT_NE(full, nullptr);
    OutputBuffer out(full);
    for (int i = 0; i < 1000; ++i) out.Write(std::string(1000, 'x'));
    const Status outcome = out.Finish();
    ASSERT_FALSE(outcome.Ok());
    EXPECT_EQ(outcome.Why().Number, ENOSPC);
    std::fclose(full);
}

TEST(Utf8Test, PrintableTextGivesNoOrders) {
    EXPECT_EQ(PrintableText("a\tb\n°C"), "a\tb\n°C");
    // escape, DEL, the C1 control that begins a terminal command, a broken character
    EXPECT_EQ(PrintableText("\x1B[2J\x7F\xC2\x9Bx\xFF"),
              "\xEF\xBF\xBD[2J\xEF\xBF\xBD\xEF\xBF\xBDx\xEF\xBF\xBD");
    EXPECT_EQ(CharacterCount("°C\xFF日"), 4U);
}

}  // namespace
}  // namespace brask
