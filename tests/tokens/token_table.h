// Texts, and what the scanner and the lexers must make of them.
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace test
{

// A part of a text, and what becomes of it: the name of a token's type, or an error, of
// which no token is made, with the place of the character that did not fit:
//
//   no token 1:0               the choice among the token rules failed
//   no escape 34 1:0           the choice after a backslash failed, in the given decision
//   mismatched character 1:0
//   mismatched set 1:0
//   early exit 1:0
//   fails                      any of these
//
// The part of an error ends where the lexer goes on.  Besides these there are
//
//   rare TYPE                  a token that the scanner leaves to the lexer
//   malformed KIND             the scanner finds a token that is shorter, for a malformed
//                              form of a character goes on with it
//   unread                     bytes of which the lexer says nothing
//   rest                       anything: the row is about what comes before
struct Piece
{
    std::string kind;
    std::string text;
};

bool operator==(const Piece& left, const Piece& right);
std::ostream& operator<<(std::ostream& stream, const Piece& piece);

bool isError(const Piece& piece);

inline const Piece space = {"WS", " "};
inline const Piece lineFeed = {"NL", "\n"};
inline const Piece dot = {"'.'", "."};
inline const Piece equals = {"'='", "="};
inline const Piece comma = {"','", ","};

// The pieces of one text, without a gap.
using Row = std::vector<Piece>;
using Rows = std::vector<Row>;

std::string textOf(const Row& row);

// Whole texts of one kind.
Rows each(const std::string& kind, const std::vector<std::string>& texts);

// The same texts with each of these after them.
Rows before(const std::vector<std::string>& rests, const Rows& rows);

// Tokens made of key characters, signs, points and colons, with whatever ends all of them.
Rows words(const std::string& kind, const std::vector<std::string>& texts);

Rows operator+(Rows first, const Rows& second);

struct TokenTable
{
    std::string name; // a sentence, for the tests
    Rows rows;
};
using TokenTables = std::vector<TokenTable>;
std::ostream& operator<<(std::ostream& stream, const TokenTable& table);

TokenTables markTables();
TokenTables wordTables();
TokenTables numberTables();
TokenTables floatTables();
TokenTables dateTables();
TokenTables timeTables();
TokenTables stringTables();
TokenTables multilineStringTables();
TokenTables characterTables();
TokenTables everyCharacterTables();
TokenTables quotedTables();
TokenTables recoveryTables();

TokenTables allTables();

} // namespace test
