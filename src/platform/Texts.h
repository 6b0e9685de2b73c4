// Every text shown to users is a row of its subsystem's table; this seam looks rows up, so that
// the window can show them in the user's language. English is the key and the default.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace brask {

// One text: the table that it belongs to and its English wording, UTF-8, with %1..%9 for what is
// filled in. Rows are written `inline constexpr auto kName = TextRow("table", "wording");`, the
// form that the translation tools look for.
struct TextRow {
    constexpr TextRow(const char* table, const char* english) : Table(table), English(english) {}

    // Both point to literals, which live as long as the program.
    const char* Table;
    const char* English;
};

class Texts {
  public:
    virtual ~Texts() = default;

    // The row's wording in the language in force, places still open. A row without a translation
    // comes back in English.
    virtual std::string Find(const TextRow& row) const = 0;

    // The row's wording with %1, %2, ... replaced by the arguments, in one pass: a "%1" inside an
    // argument stays as it is. A place without an argument stays too.
    std::string Fill(const TextRow& row, std::initializer_list<std::string_view> arguments) const;
};

// The texts as written: English. What the shell programs use always, so that scripts can rely on
// the wording.
class EnglishTexts final : public Texts {
  public:
    std::string Find(const TextRow& row) const override { return row.English; }
};

}  // namespace brask
