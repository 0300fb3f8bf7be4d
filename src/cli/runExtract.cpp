// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/commands.h"
#include "cli/FileArgumentList.h"
#include "extraction/jpegSize.h"
#include "platform/linux/replaceFile.h"
#include "platform/visibleText.h"
#include <csignal>
#include <map>
#include <memory>
#include <QCoreApplication>
#include <QCoroTask>
#include <unistd.h>

namespace Varlo {

using namespace Qt::StringLiterals;

namespace {
/// A picture is in the folder that was asked for, or it could not be put there.
using ImageFile = std::optional<Result<std::filesystem::path, SystemError>>;
} // namespace

static QSize sizeOf(const ImageContent &image) { return jpegSize(image.data).value_or(QSize()); }

static QJsonObject toJson(const FileContent &content)
{
    return std::visit(Overloaded {
                          [](const TextContent &text) -> QJsonObject {
                              return { { u"kind"_s, u"text"_s }, { u"text"_s, text.text } };
                          },
                          [](const ImageContent &image) -> QJsonObject {
                              const QSize size = sizeOf(image);
                              QJsonObject object { { u"kind"_s, u"image"_s }, { u"mimeType"_s, image.mimeType },
                                  { u"byteCount"_s, image.data.size() }, { u"width"_s, size.width() },
                                  { u"height"_s, size.height() } };
                              if (image.metadata)
                                  object.insert(u"metadata"_s, *image.metadata);
                              return object;
                          },
                      },
        content);
}

static QJsonObject toJson(const std::filesystem::path &path, const Extraction &extraction, const ImageFile &imageFile)
{
    QJsonObject object;
    const auto setResult = [&object](const QString &result) { object.insert(u"result"_s, result); };
    std::visit(Overloaded {
                   [&](const FileContent &content) {
                       object = toJson(content);
                       setResult(u"content"_s);
                   },
                   [&](const Unreadable &unreadable) {
                       setResult(u"unreadable"_s);
                       object.insert(u"message"_s, unreadable.message.text());
                   },
                   [&](NoTextFound) { setResult(u"noTextFound"_s); },
                   [&](NotSupportedYet) { setResult(u"notSupportedYet"_s); },
               },
        extraction);
    insertPath(object, u"path"_s, path);
    if (imageFile && *imageFile)
        insertPath(object, u"imageFile"_s, **imageFile);
    return object;
}

static QString summary(const FileContent &content)
{
    return std::visit(Overloaded {
                          [](const TextContent &text) { return visibleText(text.text); },
                          [](const ImageContent &image) {
                              const QSize size = sizeOf(image);
                              QStringList lines { QCoreApplication::translate("Terminal", "%1, %2 × %3, %4 bytes")
                                                      .arg(image.mimeType)
                                                      .arg(size.width())
                                                      .arg(size.height())
                                                      .arg(image.data.size()) };
                              for (const QString &line : image.metadata.value_or(QString()).split(u'\n'))
                                  lines.append(visibleText(line));
                              return lines.join(u'\n').trimmed();
                          },
                      },
        content);
}

namespace {

/// Reads five files at a time; people get the results in the order of their arguments, scripts as they complete.
class ExtractRun {
public:
    ExtractRun(const ExtractCommand &command, Terminal &terminal, ContentReader &reader)
        : m_json(command.json)
        , m_imageFolder(command.imageFolder ? std::optional(resolvedArgument(*command.imageFolder)) : std::nullopt)
        , m_terminal(terminal)
        , m_reader(reader)
    {
        for (const std::filesystem::path &file : command.files)
            m_paths.push_back(resolvedArgument(file));
    }

    QCoro::Task<void> readAll()
    {
        constexpr int maximumInFlight = 5;
        std::vector<QCoro::Task<void>> lanes;
        for (int lane = 0; lane < maximumInFlight; ++lane)
            lanes.push_back(readSome());
        for (QCoro::Task<void> &lane : lanes)
            co_await lane;
    }

    [[nodiscard]] bool hasFailures() const { return m_hasFailures; }

private:
    QCoro::Task<void> readSome()
    {
        while (m_next < m_paths.size()) {
            const std::size_t index = m_next++;
            Extraction extraction = co_await m_reader.read(m_paths[index]);
            take(index, std::move(extraction));
        }
    }

    void take(std::size_t index, Extraction extraction)
    {
        m_hasFailures = m_hasFailures || std::holds_alternative<Unreadable>(extraction)
            || std::holds_alternative<NotSupportedYet>(extraction);
        const ImageFile imageFile = writeImage(index, extraction);
        if (m_json) {
            m_terminal.printJson(toJson(m_paths[index], extraction, imageFile));
            return;
        }
        m_waiting.emplace(index, std::move(extraction));
        for (auto first = m_waiting.begin(); first != m_waiting.end() && first->first == m_nextPrinted;
             first = m_waiting.erase(first), ++m_nextPrinted)
            print(first->first, first->second);
    }

    /// Under a name of our own that nothing has yet, as that of the file may mean anything.
    ImageFile writeImage(std::size_t index, const Extraction &extraction)
    {
        const auto *const content = std::get_if<FileContent>(&extraction);
        const auto *const image = content ? std::get_if<ImageContent>(content) : nullptr;
        if (!m_imageFolder || !image)
            return {};
        constexpr int mostAttempts = 10'000;
        SystemError error;
        for (int attempt = 1; attempt <= mostAttempts; ++attempt) {
            const std::string number = std::to_string(index + 1) + (attempt > 1 ? "-" + std::to_string(attempt) : "");
            const std::filesystem::path file = *m_imageFolder / ("varlo-" + number + ".jpg");
            const auto written = createFile(file, image->data);
            if (written)
                return file;
            error = written.error();
            if (error.code != EEXIST)
                break;
        }
        m_hasFailures = true;
        m_terminal.complain(visibleText(*m_imageFolder) + u": "_s + error.description());
        return tl::unexpected(error);
    }

    void print(std::size_t index, const Extraction &extraction)
    {
        const QString file = pathFromHere(m_paths[index]);
        const auto complain = [&](const QString &message) { m_terminal.complain(file + u": "_s + message); };
        std::visit(Overloaded {
                       [&](const FileContent &content) {
                           if (m_paths.size() > 1)
                               m_terminal.print(u"==> %1 <=="_s.arg(file));
                           m_terminal.print(summary(content));
                       },
                       [&](const Unreadable &unreadable) { complain(visibleMessage(unreadable.message)); },
                       [&](NoTextFound) { complain(QCoreApplication::translate("Terminal", "No text found")); },
                       [&](NotSupportedYet) {
                           complain(QCoreApplication::translate("Terminal", "This type of file is not supported yet."));
                       },
                   },
            extraction);
    }

    bool m_json;
    std::optional<std::filesystem::path> m_imageFolder;
    Terminal &m_terminal;
    ContentReader &m_reader;
    std::vector<std::filesystem::path> m_paths;
    std::size_t m_next = 0;
    std::map<std::size_t, Extraction> m_waiting; // read, but an earlier one is not yet
    std::size_t m_nextPrinted = 0;
    bool m_hasFailures = false;
};

} // namespace

ExitCode run(const ExtractCommand &command, Session &session)
{
    return run(command, session.terminal(), session.reader());
}

ExitCode run(const ExtractCommand &command, Terminal &terminal, ContentReader &reader)
{
    std::signal(SIGINT, [](int) { ::_exit(static_cast<int>(ExitCode::Interrupted)); });
    if (command.imageFolder) {
        std::error_code error;
        std::filesystem::create_directories(*command.imageFolder, error);
        if (error) {
            const QString message = SystemError { error.value() }.description();
            terminal.complain(visibleText(*command.imageFolder) + u": "_s + message);
            return ExitCode::SomeFailed;
        }
    }
    ExtractRun extraction(command, terminal, reader);
    QCoro::waitFor(extraction.readAll());
    return extraction.hasFailures() ? ExitCode::SomeFailed : ExitCode::Success;
}

} // namespace Varlo
