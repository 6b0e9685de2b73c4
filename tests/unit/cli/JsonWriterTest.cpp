#include <limits>

#include "../platform/FilesFixture.h"
#include "cli/JsonWriter.h"

namespace brask {
namespace {

// What `write` sends to a file through a JSON writer.
template <class Write>
std::string Written(Write write) {
    std::FILE* file = std::tmpfile();
    OutputBuffer out(file);
    JsonWriter json(out);
    write(json);
    EXPECT_TRUE(out.Finish().Ok());
    std::string text = WrittenTo(file);
    std::fclose(file);
    return text;
}

TEST(JsonWriterTest, EveryTextIsValid) {
    using std::string_view_literals::operator""sv;
    const std::pair<std::string_view, const char*> cases[] = {
        {"a\"b\\c/d", R"("a\"b\\c/d")"},
        {"\r\n\t", R"("\r\n\t")"},
        {"\0\x1B\x1F\x7F"sv, "\"\\u0000\\u001b\\u001f\x7F\""},
        {"°C, 日本, \U0001F600", "\"°C, 日本, \U0001F600\""},
        {"\xB0 cut \xE2\x82", "\"\uFFFD cut \uFFFD\uFFFD\""},
        {"\xC0\xAF", "\"\uFFFD\uFFFD\""},                       // overlong "/"
        {"\xED\xA0\x80", "\"\uFFFD\uFFFD\uFFFD\""},             // half a surrogate pair
        {"\xF4\x90\x80\x80", "\"\uFFFD\uFFFD\uFFFD\uFFFD\""}};  // too high
    for (const auto& test : cases) {
        EXPECT_EQ(Written([&](JsonWriter& json) { json.String(test.first); }), test.second);
    }
}

TEST(JsonWriterTest, NumbersAreExactAndNullWhereJsonHasNone) {
    using Limits = std::numeric_limits<double>;
    const double values[] = {38078.041666666664, -0.0, Limits::infinity(), Limits::quiet_NaN()};
    EXPECT_EQ(Written([&](JsonWriter& json) { json.Member("a", values); }),
              "\"a\":[38078.041666666664,-0,null,null]");
}

}  // namespace
}  // namespace brask
