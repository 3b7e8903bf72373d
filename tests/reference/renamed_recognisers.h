// Names for a second set of the tool's recognisers in one program.  Include this header
// before theirs.
#pragma once

#define TomlLexerNew referenceTomlLexerNew
#define TomlLexerNewSSD referenceTomlLexerNewSSD
#define TomlParserNew referenceTomlParserNew
#define TomlParserNewSSD referenceTomlParserNewSSD
#define TomlParserTokenNames referenceTomlParserTokenNames
#define TomlTreeNew referenceTomlTreeNew
#define TomlTreeNewSSD referenceTomlTreeNewSSD
#define TomlTreeTokenNames referenceTomlTreeTokenNames
