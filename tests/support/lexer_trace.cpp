#include "lexer_trace.h"

#include <cstdint>
#include <cstring>
#include <memory>
#include <vector>

#include "lexer.h"

namespace test
{
namespace
{

using LexerOwner = std::unique_ptr<TomlLexer, FreeRecogniser>;

// A text in memory as a stream has it.  Some of the runtime's texts go a character beyond
// the end.
class Source
{
public:
    Source(const std::string& text, StreamKind kind) : bytes_(text)
    {
        if (kind == StreamKind::utf16)
        {
            bytes_.clear();
            for (const char c : text)
            {
                bytes_ += c;
                bytes_ += '\0';
            }
        }
        const std::size_t size = bytes_.size();
        bytes_.append(4, '\0');
        stream_.reset(
            antlr3StringStreamNew(data(), encoding(kind), static_cast<ANTLR3_UINT32>(size), name));
        if (kind == StreamKind::upperCase)
        {
            stream_->setUcaseLA(stream_.get(), ANTLR3_TRUE);
        }
        if (kind == StreamKind::otherLineEnds)
        {
            stream_->SetNewLineChar(stream_.get(), ';');
        }
        if (kind == StreamKind::ownLookahead)
        {
            static ANTLR3_UCHAR (*lookAhead)(pANTLR3_INT_STREAM, ANTLR3_INT32) = nullptr;
            lookAhead = stream_->istream->_LA;
            stream_->istream->_LA = [](pANTLR3_INT_STREAM stream, ANTLR3_INT32 place)
            { return lookAhead(stream, place); };
        }
    }

    pANTLR3_INPUT_STREAM stream() const { return stream_.get(); }

private:
    static ANTLR3_UINT32 encoding(StreamKind kind)
    {
        return kind == StreamKind::eightBit ? ANTLR3_ENC_8BIT
               : kind == StreamKind::utf16  ? ANTLR3_ENC_UTF16LE
                                            : ANTLR3_ENC_UTF8;
    }

    pANTLR3_UINT8 data() { return reinterpret_cast<pANTLR3_UINT8>(bytes_.data()); }

    static inline ANTLR3_UINT8 name[] = "toml";

    std::string bytes_;
    InputStream stream_;
};

// The trace of one lexer, to which the lexer's display adds as well.
class Trace
{
public:
    explicit Trace(pANTLR3_LEXER lexer) : lexer_(lexer)
    {
        lexer_->rec->state->userp = this;
        lexer_->rec->displayRecognitionError = [](pANTLR3_BASE_RECOGNIZER recogniser, auto)
        { static_cast<Trace*>(recogniser->state->userp)->addError(); };
    }

    void addToken(const ANTLR3_COMMON_TOKEN& token)
    {
        add("\ntoken", token.type);
        add("at", offset(token.start));
        add("to", offset(token.stop));
        add("line", token.line);
        add("position", token.charPosition);
        add("begun", offset(reinterpret_cast<ANTLR3_MARKER>(token.lineStart)));
        add("channel", token.channel);
        addState();
    }

    void addError()
    {
        const ANTLR3_EXCEPTION& exception = *lexer_->rec->state->exception;
        add("\nerror", exception.type);
        text_ += std::string(" ") + static_cast<const char*>(exception.name);
        text_ += std::string(" '") + static_cast<const char*>(exception.message) + "'";
        add("decision", exception.decisionNum);
        add("state", exception.state);
        add("line", exception.line);
        add("position", exception.charPositionInLine);
        add("character", exception.c);
        add("index", offset(exception.index));
        addChain(exception);
        addText();
        addState();
    }

    void addState()
    {
        const ANTLR3_RECOGNIZER_SHARED_STATE& state = *lexer_->rec->state;
        add("| type", state.type);
        add("failed", state.failed);
        add("pending", state.error);
        add("skipped", state.token == &state.tokSource->skipToken);
        const ANTLR3_INPUT_STREAM& input = *lexer_->input;
        add("input", offset(reinterpret_cast<ANTLR3_MARKER>(input.nextChar)));
        add("line", input.line);
        add("position", input.charPositionInLine);
        add("begun", offset(reinterpret_cast<ANTLR3_MARKER>(input.currentLine)));
        add("marks", input.markDepth);
    }

    void add(const char* name, std::int64_t value)
    {
        text_ += name;
        text_ += ' ' + std::to_string(value) + ' ';
    }

    const std::string& text() const { return text_; }

private:
    // The runtime's positions are addresses of the text.
    std::int64_t offset(ANTLR3_MARKER position) const
    {
        return position - reinterpret_cast<ANTLR3_MARKER>(lexer_->input->data);
    }

    // No exception is made and thrown away.
    void addChain(const ANTLR3_EXCEPTION& exception)
    {
        int length = 0;
        for (const ANTLR3_EXCEPTION* link = &exception; link != nullptr; ++length)
        {
            link = link->nextException;
        }
        add("chain", length);
    }

    // Of a stream of wider code units the runtime cannot take a text that has just begun.
    void addText()
    {
        if (lexer_->input->encoding == ANTLR3_ENC_UTF16LE)
        {
            return;
        }
        const pANTLR3_STRING matched = lexer_->getText(lexer_);
        text_ += " text '";
        text_.append(reinterpret_cast<const char*>(matched->chars), matched->len);
        text_ += '\'';
    }

    pANTLR3_LEXER lexer_;
    std::string text_;
};

} // namespace

std::string traceTokens(MakeLexer make, const std::string& text, StreamKind kind)
{
    const Source source(text, kind);
    const LexerOwner lexer(make(source.stream()));
    Trace trace(lexer->pLexer);
    const pANTLR3_TOKEN_SOURCE tokens = lexer->pLexer->rec->state->tokSource;
    pANTLR3_COMMON_TOKEN token = tokens->nextToken(tokens);
    for (; token->type != ANTLR3_TOKEN_EOF; token = tokens->nextToken(tokens))
    {
        trace.addToken(*token);
    }
    trace.add("\nerrors", lexer->pLexer->rec->state->errorCount);
    trace.addState();
    return trace.text();
}

std::string traceRule(MakeLexer make, std::size_t rule, const std::string& text)
{
    const Source source(text, StreamKind::utf8);
    const LexerOwner lexer(make(source.stream()));
    std::vector<TomlLexerRule> members(sizeof(TomlLexer) / sizeof(TomlLexerRule));
    std::memcpy(members.data(), lexer.get(), sizeof(TomlLexer));
    Trace trace(lexer->pLexer);
    const pANTLR3_RECOGNIZER_SHARED_STATE state = lexer->pLexer->rec->state;
    state->tokenStartCharIndex = reinterpret_cast<ANTLR3_MARKER>(source.stream()->nextChar);
    state->type = 1000;
    members[rule](lexer.get());
    trace.addState();
    if (state->error == ANTLR3_TRUE)
    {
        trace.addError();
    }
    return trace.text();
}

} // namespace test
