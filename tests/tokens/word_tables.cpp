// Booleans, bare keys, infinities and what is not a number.
#include "token_table.h"

namespace test
{

TokenTables wordTables()
{
    return {
        {"Booleans_areTheTwoWords",
         words("BOOLEAN", {"true", "false"}) +
             Rows{
                 {{"BOOLEAN", "true"}, dot},
                 {{"BOOLEAN", "false"}, {"no token 1:6", "+"}},
                 {{"BOOLEAN", "true"}, {"no token 1:4", ":"}},
                 {{"BOOLEAN", "true"}, space, equals, space, {"BOOLEAN", "false"}, lineFeed},
                 {{"'['", "["}, {"BOOLEAN", "true"}, comma, {"BOOLEAN", "false"}, {"']'", "]"}},
                 {{"BOOLEAN", "true"}, dot, {"BOOLEAN", "false"}},
                 {{"BOOLEAN", "true"}, {"no token 1:5", "+"}},
             }},
        {"BareKeys_areLettersDigitsUnderscoresAndHyphens",
         words("BARE_KEY",
               {// Of every character
                "abcdefghijklmnopqrstuvwxyz", "ABCDEFGHIJKLMNOPQRSTUVWXYZ", "a0123456789",
                "0123456789", "abcdefghijklmnopqrstuvwxyz-ABCDEFGHIJKLMNOPQRSTUVWXYZ_0123456789",
                "a", "abc", "A-Z_0", "a-b_c", "bare_key", "Z", "1a", "x0", "x0x1F", "a1b2",
                // Without a letter
                "-", "_", "--", "---", "__", "-_-", "-_", "_1", "-_1", "--1",
                // Nearly a boolean or the sign of an exponent
                "t", "f", "T", "tr", "tru", "truex", "true_", "true-", "truetrue", "-true", "True",
                "TRUE", "fals", "falsey", "FALSE", "e", "E5", "-e5",
                // Nearly an infinity or not a number
                "i", "in", "inf-", "infinity", "Inf", "-in", "-infx", "-inf_", "--inf", "_inf", "n",
                "nanx", "nan_", "NaN", "-nanx", "-a"}) +
             Rows{
                 {{"BARE_KEY", "a"}, dot, {"BARE_KEY", "b"}},
                 {{"BARE_KEY", "a"}, {"DEC_INT", "+1"}},
                 {{"BARE_KEY", "e"}, {"DEC_INT", "+5"}},
                 {{"BARE_KEY", "a"}, {"no token 1:1", ":"}},
                 {{"BARE_KEY", "-"}, {"DEC_INT", "+1"}},
                 {{"BARE_KEY", "-"}, dot, {"DEC_INT", "5"}},
             }},
        {"BareKeys_endAtAnyOtherCharacter",
         {
             {{"BARE_KEY", "a"}, equals, {"BARE_KEY", "b"}},
             {{"BARE_KEY", "a"}, {"BASIC_STRING", R"("b")"}},
             {{"BARE_KEY", "a"}, {"no token 1:1", "/"}, {"BARE_KEY", "b"}},
             {{"BARE_KEY", "a"}, {"no token 1:1", ":"}, {"BARE_KEY", "b"}},
             {{"BARE_KEY", "a"}, {"no token 1:1", "@"}, {"BARE_KEY", "b"}},
             {{"BARE_KEY", "a"}, {"no token 1:1", "`"}, {"BARE_KEY", "b"}},
             {{"BARE_KEY", "a"}, {"no token 1:1", "^"}, {"BARE_KEY", "b"}},
             {{"BARE_KEY", "a"}, {"no token 1:1", R"(\)"}, {"BARE_KEY", "b"}},
             {dot, {"DEC_INT", "5"}},
         }},
        {"SpecialFloats_areLowerCaseWithAnOptionalSign",
         words("INF", {"inf", "-inf", "+inf"}) + words("NAN", {"nan", "-nan", "+nan"}) +
             words("BARE_KEY", {"INF", "NAN", "Nan", "inf0", "na", "-na", "-nan-", "-Inf", "-NaN",
                                "infinf", "nannan"}) +
             Rows{
                 {{"INF", "inf"}, dot},
                 {{"INF", "-inf"}, {"no token 1:5", "+"}},
                 {{"INF", "+inf"}, {"BARE_KEY", "inity"}},
                 {{"INF", "+inf"}, {"BARE_KEY", "-"}},
                 {{"NAN", "nan"}, dot},
                 {{"NAN", "-nan"}, {"no token 1:5", "+"}},
                 {{"NAN", "+nan"}, {"BARE_KEY", "x"}},
                 {{"NAN", "+nan"}, {"BARE_KEY", "_"}},
             }},
        {"SpecialFloats_endAnywhereAfterAPlusSign",
         {
             {{"INF", "+inf"}, {"BARE_KEY", "x"}},
             {{"NAN", "+nan"}, {"DEC_INT", "0"}},
             {{"INF", "inf"}, dot, {"NAN", "nan"}},
             {{"INF", "inf"}, {"NAN", "+nan"}},
         }},
        {"SpecialFloats_areDecidedByTheLetterAfterAPlusSign",
         {
             {{"no token 1:1", "+"}, {"BARE_KEY", "Inf"}},
             {{"no token 1:1", "+"}, {"BARE_KEY", "NaN"}},
             {{"mismatched character 1:3", "+in"}},
             {{"mismatched character 1:2", "+i"}},
             {{"mismatched character 1:3", "+na"}},
             {{"mismatched character 1:2", "+iax"}, space, {"BARE_KEY", "y"}},
             {{"mismatched character 1:3", "+inx "}, {"BARE_KEY", "yz"}},
             {{"mismatched character 1:3", "+nax "}, {"BARE_KEY", "yz"}},
         }},
        {"Signs_needSomethingToSign",
         {
             {{"no token 1:1", "+"}, {"BARE_KEY", "a"}},
             {{"no token 1:1", "+"}, space, {"DEC_INT", "1"}},
             {{"no token 1:1", "+"}, {"DEC_INT", "+1"}},
             {{"no token 1:1", "+"}, {"DEC_INT", "-1"}},
             {{"no token 1:1", "+"}, {"BARE_KEY", "_"}},
             {{"no token 1:1", "+"}, lineFeed},
             {{"no token 1:1", "+"}, {"BOOLEAN", "true"}},
             {{"BARE_KEY", "-"}, space, {"DEC_INT", "1"}},
             {{"no token 1:1", "+"}, {"BARE_KEY", "_1"}},
             {{"no token 1:3", "+"}, {"BARE_KEY", "1_x"}},
             {{"no token 1:1", "+"}, {"BARE_KEY", "e5"}},
             {{"mismatched set 1:3", "+1ex"}},
             {{"mismatched set 1:3", "+1e_5"}},
             {{"mismatched set 1:4", "+1e-"}},
             {{"mismatched set 1:4", "+1e+"}},
             {{"no token 1:3", "+"}, {"BARE_KEY", "1_e5"}},
             {{"no token 1:1", "+"}, {"BASIC_STRING", R"("")"}},
             {{"mismatched set 1:3", "+0e"}},
             {{"no token 1:4", "+"}, {"BARE_KEY", "12_"}},
         }},
    };
}

} // namespace test
