// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "renaming/AppleScriptInterpreter.h"

#include <filesystem>
#include <QHash>
#include <QStringList>

namespace Varlo {

using namespace Qt::StringLiterals;
using Path = std::filesystem::path;
using Token = AppleScriptInterpreter::Token;
using ScriptError = AutomationHost::ScriptError;

namespace {

struct PosixFile { // a path that nobody has looked for yet
    Path path;
};
struct Alias { // something that exists
    Path path;
};
struct Folder { // as Finder names one
    Path path;
};
struct FolderItem { // perhaps absent
    Path path;
};
using Value = std::variant<std::monostate, QString, qint64, bool, PosixFile, Alias, Folder, FolderItem>;

// Of Apple's MacErrors.h and the AppleScript Language Guide's list of errors.
constexpr int fileNotFound = -43;
constexpr int duplicateName = -48;
constexpr int badName = -37;
constexpr int timedOut = -1712;
constexpr int wrongKind = -1700;
constexpr int raisedByScript = -2700;
constexpr int syntaxError = -2741;
constexpr int undefinedVariable = -2753;

bool isThere(const Path &path)
{
    std::error_code ignored;
    return std::filesystem::exists(std::filesystem::symlink_status(path, ignored));
}

/// Walks over a script. While it is not live it only reads: that is how a script is compiled, and how the branches that
/// are not taken are passed over.
class Walker {
public:
    Walker(const QList<Token> &tokens, bool isLive)
        : m_tokens(tokens)
        , m_isLive(isLive)
    {
    }
    Result<std::optional<QString>, ScriptError> run()
    {
        block();
        if (!isStopped() && m_at < m_tokens.size())
            fail(syntaxError, u"No statement starts here: "_s + peek().text);
        if (m_failure)
            return tl::unexpected(*m_failure);
        return m_result;
    }

private:
    [[nodiscard]] bool isStopped() const { return m_failure || m_result; }
    Value fail(int number, const QString &message)
    {
        if (!m_failure)
            m_failure = ScriptError { number, message };
        return {};
    }
    /// The value as one of a kind; a live walk fails when it is another.
    template <typename Kind> Kind as(const Value &value)
    {
        const Kind *held = std::get_if<Kind>(&value);
        if (!held && m_isLive)
            fail(wrongKind, u"A value of another kind is needed here."_s);
        return held ? *held : Kind {};
    }

    [[nodiscard]] Token peek() const { return m_at < m_tokens.size() ? m_tokens[m_at] : Token { Token::LineEnd, {} }; }
    bool takes(Token::Kind kind, QStringView text)
    {
        const bool isNext = peek().kind == kind && peek().text == text;
        m_at += isNext ? 1 : 0;
        return isNext;
    }
    bool takesWord(QStringView word) { return takes(Token::Word, word); }
    void expect(const QStringList &words)
    {
        for (const QString &word : words) {
            if (!takesWord(word))
                fail(syntaxError, u"Expected “"_s + word + u"” but found: "_s + peek().text);
        }
    }
    void expectLineEnd()
    {
        if (!isStopped() && peek().kind != Token::LineEnd)
            fail(syntaxError, u"Expected the end of the line but found: "_s + peek().text);
        ++m_at;
    }

    void block()
    {
        while (!isStopped() && m_at < m_tokens.size() && statement())
            expectLineEnd();
    }
    /// False where no statement starts: at what ends a block.
    bool statement()
    {
        if (takesWord(u"tell"))
            tellStatement();
        else if (takesWord(u"repeat"))
            repeatStatement();
        else if (takesWord(u"if"))
            ifStatement();
        else
            return simpleStatement();
        return true;
    }
    void tellStatement()
    {
        expect({ u"application"_s });
        if (!takes(Token::Text, u"Finder"))
            fail(syntaxError, u"Nobody here is called: "_s + peek().text);
        expectLineEnd();
        m_isFinderTold = true;
        block();
        m_isFinderTold = false;
        if (!isStopped())
            expect({ u"end"_s, u"tell"_s });
    }
    void repeatStatement()
    {
        expectLineEnd();
        const qsizetype start = m_at;
        for (int round = 0; !isStopped() && round < (m_isLive ? 1000 : 1); ++round) {
            m_at = start;
            block();
            if (!isStopped())
                expect({ u"end"_s, u"repeat"_s });
        }
        if (m_isLive && !isStopped())
            fail(timedOut, u"The script does not end."_s);
    }
    void ifStatement()
    {
        const bool isTrue = as<bool>(expression());
        expect({ u"then"_s });
        if (peek().kind != Token::LineEnd) {
            walkWhen(isTrue, [this] {
                if (!simpleStatement())
                    fail(syntaxError, u"Expected a statement behind “then”."_s);
            });
            return;
        }
        ++m_at;
        walkWhen(isTrue, [this] { block(); });
        if (!isStopped() && takesWord(u"else")) {
            expectLineEnd();
            walkWhen(!isTrue, [this] { block(); });
        }
        if (!isStopped())
            expect({ u"end"_s, u"if"_s });
    }
    template <typename Walk> void walkWhen(bool isTaken, const Walk &walk)
    {
        if (isStopped())
            return;
        const bool wasLive = m_isLive;
        m_isLive = wasLive && isTaken;
        walk();
        m_isLive = wasLive;
    }
    bool simpleStatement()
    {
        if (takesWord(u"set"))
            setStatement();
        else if (takesWord(u"return")) {
            const QString text = as<QString>(expression());
            if (m_isLive && !m_failure)
                m_result = text;
        } else if (takesWord(u"error")) {
            const QString message = as<QString>(expression());
            if (m_isLive)
                fail(raisedByScript, message);
        } else
            return false;
        return true;
    }
    void setStatement()
    {
        if (takesWord(u"name")) {
            expectFinder();
            expect({ u"of"_s });
            const Alias item = as<Alias>(primary());
            expect({ u"to"_s });
            rename(item.path, as<QString>(expression()));
            return;
        }
        const QString variable = peek().text;
        if (!isVariable(peek()))
            fail(syntaxError, u"This cannot be set: "_s + variable);
        ++m_at;
        expect({ u"to"_s });
        const Value value = expression();
        if (m_isLive)
            m_variables[variable] = value;
    }
    void rename(const Path &item, const QString &name)
    {
        if (!m_isLive || isStopped())
            return;
        const Path renamed = child(item.parent_path(), name);
        if (isThere(renamed))
            fail(duplicateName, u"There is already an item with that name."_s);
        std::error_code error;
        if (!isStopped())
            std::filesystem::rename(item, renamed, error);
        if (error)
            fail(error.value(), QString::fromStdString(error.message()));
    }
    Path child(const Path &folder, const QString &name)
    {
        if (name.isEmpty() || name.contains(u'/') || name == "."_L1 || name == ".."_L1)
            fail(badName, u"This is no name: "_s + name);
        return folder / name.toStdString();
    }

    // Operators from the loosest to the tightest: not, comparison, as, &, +.
    Value expression()
    {
        if (takesWord(u"not"))
            return !as<bool>(expression());
        const Value left = conversion();
        if (takesWord(u"is")) {
            const bool isNegated = takesWord(u"not");
            return areEqual(left, conversion()) != isNegated;
        }
        if (takes(Token::Symbol, u">")) {
            const qint64 number = as<qint64>(left);
            return number > as<qint64>(conversion());
        }
        return left;
    }
    bool areEqual(const Value &left, const Value &right)
    {
        if (std::holds_alternative<qint64>(left))
            return std::get<qint64>(left) == as<qint64>(right);
        // AppleScript takes letters in both cases for equal unless it is told to consider case.
        return as<QString>(left).compare(as<QString>(right), Qt::CaseInsensitive) == 0;
    }
    Value conversion()
    {
        Value value = joined();
        while (takesWord(u"as")) {
            if (takesWord(u"alias"))
                value = alias(value);
            else if (takesWord(u"text"))
                value = as<QString>(value);
            else
                fail(syntaxError, u"No kind of value: "_s + peek().text);
        }
        return value;
    }
    Value alias(const Value &value)
    {
        const auto *folder = std::get_if<Folder>(&value);
        const Path path = folder ? folder->path : as<PosixFile>(value).path;
        if (m_isLive && !m_failure && !isThere(path))
            return fail(fileNotFound, u"The file wasn’t found."_s);
        return Alias { path };
    }
    Value joined()
    {
        Value left = sum();
        while (takes(Token::Symbol, u"&")) {
            const Value right = sum();
            const auto *number = std::get_if<qint64>(&right);
            left = as<QString>(left) + (number ? QString::number(*number) : as<QString>(right));
        }
        return left;
    }
    Value sum()
    {
        Value left = primary();
        while (takes(Token::Symbol, u"+")) {
            const qint64 number = as<qint64>(left);
            left = number + as<qint64>(primary());
        }
        return left;
    }
    Value primary()
    {
        const Token token = peek();
        ++m_at;
        if (isStopped())
            return {};
        if (token.kind == Token::Text)
            return token.text;
        if (token.kind == Token::Number)
            return token.text.toLongLong();
        if (token == Token { Token::Symbol, u"("_s }) {
            const Value value = expression();
            if (!takes(Token::Symbol, u")"))
                fail(syntaxError, u"Expected “)” but found: "_s + peek().text);
            return value;
        }
        if (token == Token { Token::Word, u"POSIX"_s })
            return posix();
        if (isVariable(token))
            return variable(token.text);
        expectFinder();
        return finderTerm(token);
    }
    Value variable(const QString &name)
    {
        if (m_isLive && !m_variables.contains(name))
            return fail(undefinedVariable, u"The variable "_s + name + u" is not defined."_s);
        return m_variables.value(name);
    }
    Value posix()
    {
        if (takesWord(u"file"))
            return PosixFile { as<QString>(primary()).toStdString() };
        expect({ u"path"_s, u"of"_s });
        const Path path = as<Alias>(primary()).path;
        std::error_code ignored;
        const std::string slash = std::filesystem::is_directory(path, ignored) ? "/" : "";
        return QString::fromStdString(path.native() + slash);
    }
    Value finderTerm(const Token &token)
    {
        if (token.text == "exists"_L1)
            return isThere(as<FolderItem>(primary()).path);
        if (token.text == "container"_L1) {
            expect({ u"of"_s });
            return Folder { as<Alias>(primary()).path.parent_path() };
        }
        if (token.text == "name"_L1) {
            expect({ u"of"_s });
            return QString::fromStdString(as<Alias>(primary()).path.filename().native());
        }
        if (token.text == "item"_L1) {
            const QString name = as<QString>(primary());
            expect({ u"of"_s });
            const Path folder = as<Folder>(primary()).path;
            return FolderItem { m_isLive ? child(folder, name) : folder };
        }
        return fail(syntaxError, u"No value starts here: "_s + token.text);
    }
    void expectFinder()
    {
        if (!m_isFinderTold)
            fail(syntaxError, u"Only Finder knows of names, items and containers."_s);
    }
    static bool isVariable(const Token &token)
    {
        static const QStringList reserved
            = u"POSIX alias application as container else end error exists file if is item "
              "name not of path repeat return set tell text then to"_s.split(u' ');
        return token.kind == Token::Word && !reserved.contains(token.text);
    }

    const QList<Token> &m_tokens;
    qsizetype m_at = 0;
    bool m_isLive;
    bool m_isFinderTold = false;
    QHash<QString, Value> m_variables;
    std::optional<ScriptError> m_failure;
    std::optional<QString> m_result;
};

std::optional<Token> textToken(QStringView source, qsizetype &at)
{
    QString text;
    for (++at; at < source.size() && source[at] != u'"'; ++at) {
        if (source[at] == u'\\' && (++at == source.size() || !u"\\\""_s.contains(source[at])))
            return std::nullopt;
        text.append(source[at]);
    }
    if (at == source.size())
        return std::nullopt;
    ++at;
    return Token { Token::Text, text };
}

Token wordToken(QStringView source, qsizetype &at)
{
    const qsizetype start = at;
    while (at < source.size() && source[at].isLetterOrNumber())
        ++at;
    const QString text = source.sliced(start, at - start).toString();
    return { text.front().isDigit() ? Token::Number : Token::Word, text };
}

std::optional<QList<Token>> tokens(QStringView source)
{
    QList<Token> tokens;
    for (qsizetype at = 0; at < source.size();) {
        const QChar character = source[at];
        if (character == u'"') {
            const std::optional<Token> text = textToken(source, at);
            if (!text)
                return std::nullopt;
            tokens.append(*text);
        } else if (character.isLetterOrNumber())
            tokens.append(wordToken(source, at));
        else if (character == u' ')
            ++at;
        else if (character == u'\n' || u"&()+>"_s.contains(character)) {
            tokens.append({ character == u'\n' ? Token::LineEnd : Token::Symbol, QString(character) });
            ++at;
        } else
            return std::nullopt;
    }
    return tokens;
}

} // namespace

std::optional<QList<Token>> AppleScriptInterpreter::compile(const QString &source)
{
    const std::optional<QList<Token>> script = tokens(source);
    return script && Walker(*script, false).run() ? script : std::nullopt;
}

Result<std::optional<QString>, ScriptError> AppleScriptInterpreter::execute(const QList<Token> &script)
{
    return Walker(script, true).run();
}

} // namespace Varlo
