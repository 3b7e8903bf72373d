#include "token_table.h"

namespace test
{

bool operator==(const Piece& left, const Piece& right)
{
    return left.kind == right.kind && left.text == right.text;
}

std::ostream& operator<<(std::ostream& stream, const Piece& piece)
{
    return stream << piece.kind << " \"" << piece.text << '"';
}

// Names of types have no blanks.
bool isError(const Piece& piece)
{
    return piece.kind == "fails" || (piece.kind.find(' ') != std::string::npos &&
                                     piece.kind.rfind("rare ", 0) == std::string::npos);
}

std::ostream& operator<<(std::ostream& stream, const TokenTable& table)
{
    return stream << table.name;
}

std::string textOf(const Row& row)
{
    std::string text;
    for (const Piece& piece : row)
    {
        text += piece.text;
    }
    return text;
}

Rows each(const std::string& kind, const std::vector<std::string>& texts)
{
    Rows rows;
    for (const std::string& text : texts)
    {
        rows.push_back({{kind, text}});
    }
    return rows;
}

Rows before(const std::vector<std::string>& rests, const Rows& rows)
{
    Rows longer;
    for (const Row& row : rows)
    {
        for (const std::string& rest : rests)
        {
            longer.push_back(row);
            longer.back().push_back({"rest", rest});
        }
    }
    return longer;
}

Rows words(const std::string& kind, const std::vector<std::string>& texts)
{
    return before(
        {"", "\n", "\r\n", " ", "\t", ",", "]", "}", "=", "[", "#", "\"", "'", "\x7f", "\xc3\xa9"},
        each(kind, texts));
}

Rows operator+(Rows first, const Rows& second)
{
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

TokenTables allTables()
{
    TokenTables all;
    for (const TokenTables& tables :
         {markTables(), wordTables(), numberTables(), floatTables(), dateTables(), timeTables(),
          stringTables(), quotedTables(), multilineStringTables(), characterTables(),
          everyCharacterTables(), recoveryTables()})
    {
        all.insert(all.end(), tables.begin(), tables.end());
    }
    return all;
}

} // namespace test
