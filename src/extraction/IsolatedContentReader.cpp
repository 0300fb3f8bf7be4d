// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/IsolatedContentReader.h"

#include "extraction/isolation/ExtractorProcess.h"
#include "extraction/isolation/Turns.h"
#include "extraction/openForReading.h"
#include "extraction/readPlainText.h"
#include "extraction/readTextPreview.h"
#include "extraction/supportedExtensions.h"
#include "platform/Characters.h"
#include "platform/linux/OwnFolders.h"
#include "platform/pathExtension.h"
#include <algorithm>
#include <QCoreApplication>
#include <QCoroFuture>
#include <QtConcurrentRun>
#include <QThreadPool>

namespace Varlo {

using namespace Qt::StringLiterals;

static constexpr int mostFilesAtOnce = 5;

// Opened, and for a worker to read. Shared, as what a thread gives back has to be copied.
using OpenedFile = std::shared_ptr<const FileDescriptor>;

static Message unsafeMessage()
{
    //: Error for a file whose reader died or answered nonsense.
    return { "Extraction", QT_TRANSLATE_NOOP("Extraction", "This file could not be read safely.") };
}

static Message wordsFor(WorkerFailure failure)
{
    switch (failure) {
    case WorkerFailure::TookTooLong:
        return { "Extraction", QT_TRANSLATE_NOOP("Extraction", "Reading this file took too long.") };
    case WorkerFailure::NotInstalled:
        //: Error when a file of the program itself is missing.
        return { "Extraction", QT_TRANSLATE_NOOP("Extraction", "The part that reads such files is not installed.") };
    case WorkerFailure::Unsafe:
    case WorkerFailure::StarterGone:
        break;
    }
    return unsafeMessage();
}

template <std::size_t Size>
static bool isOneOf(const std::array<std::string_view, Size> &extensions, const std::string &extension)
{
    return std::find(extensions.begin(), extensions.end(), extension) != extensions.end();
}

/// On a thread, as a file may be far away: the outcome where this process can tell it, else the file for a worker.
template <typename Outcome>
static std::variant<Outcome, OpenedFile> look(
    const std::filesystem::path &path, const FileFlags &flags, Outcome (*readText)(const FileDescriptor &file))
{
    auto file = openForReading(path, flags);
    if (!file)
        return Outcome(file.error());
    const std::string extension = lowerCaseExtension(path);
    if (isOneOf(textExtensions, extension))
        return readText(*file);
    if (!supportedExtensions().contains(extension))
        return Outcome(NotSupportedYet {});
    return std::make_shared<const FileDescriptor>(std::move(*file));
}

struct IsolatedContentReader::State {
    const FileFlags &flags;
    std::unique_ptr<ExtractorProcess> extractor; // none after the reader's end
    Turns turns { mostFilesAtOnce };
    QThreadPool threads;
    std::optional<SandboxLayers> layers;
    std::function<void(const QString &)> warn;

    explicit State(const FileFlags &fileFlags)
        : flags(fileFlags)
    {
        threads.setMaxThreadCount(mostFilesAtOnce);
    }
    void take(const SandboxLayers &latest);

    // Calls that outlive the reader: each holds the state.
    using Shared = std::shared_ptr<State>;
    static QCoro::Task<Extraction> read(Shared state, std::filesystem::path path);
    static QCoro::Task<Preview> preview(Shared state, std::filesystem::path path, int longestSide);
    static QCoro::Task<Result<ReadersReport, QString>> inspect(Shared state);
    static QCoro::Task<WorkerOutcome> ask(Shared state, WorkerJob job, OpenedFile file);
    static QCoro::Task<WorkerOutcome> askWithAll(Shared state, WorkerJob job, OpenedFile file);

    class Turn;
};

/// Had for as long as it lives.
class IsolatedContentReader::State::Turn {
public:
    explicit Turn(State &state)
        : m_state(state)
    {
    }
    Turn(const Turn &) = delete;
    Turn &operator=(const Turn &) = delete;
    ~Turn() { m_state.turns.end(); }

private:
    State &m_state;
};

void IsolatedContentReader::State::take(const SandboxLayers &latest)
{
    const bool isFirst = !layers;
    layers = latest;
    if (isFirst && !latest.isComplete() && warn)
        warn(QCoreApplication::translate("Extraction",
            "This system cannot lock the reading of files in completely; `varlo doctor` tells what is missing."));
}

QCoro::Task<WorkerOutcome> IsolatedContentReader::State::ask(Shared state, WorkerJob job, OpenedFile file)
{
    constexpr int mostAttempts = 2; // a starter that somebody killed is not the file's fault
    WorkerOutcome outcome = WorkerFailure::StarterGone;
    for (int attempt = 0; attempt < mostAttempts && state->extractor; ++attempt) {
        const QFuture<WorkerOutcome> answer = state->extractor->ask(job, *file);
        outcome = co_await answer;
        const auto *const failure = std::get_if<WorkerFailure>(&outcome);
        if (!failure || *failure != WorkerFailure::StarterGone)
            break;
    }
    co_return outcome;
}

/// Libraries that few files need are loaded only when a worker says so.
QCoro::Task<WorkerOutcome> IsolatedContentReader::State::askWithAll(Shared state, WorkerJob job, OpenedFile file)
{
    WorkerOutcome outcome = co_await ask(state, job, file);
    const auto *const answer = std::get_if<WorkerAnswer>(&outcome);
    job.recognizesText = answer && std::holds_alternative<RecognitionNeeded>(*answer);
    job.usesFurtherDecoder = answer && std::holds_alternative<FurtherDecoderNeeded>(*answer);
    if (job.recognizesText || job.usesFurtherDecoder)
        outcome = co_await ask(state, job, file);
    co_return outcome;
}

/// An answer to another question, or one that asks for libraries a second time, comes from nobody who means well.
template <typename Outcome, typename TakeContent, typename TakePicture>
static Outcome fromWorker(const WorkerOutcome &outcome, const TakeContent &takeContent, const TakePicture &takePicture)
{
    const auto unreadable = [](WorkerFailure failure) -> Outcome { return Unreadable { wordsFor(failure) }; };
    const auto *const answer = std::get_if<WorkerAnswer>(&outcome);
    if (!answer)
        return unreadable(std::get<WorkerFailure>(outcome));
    return std::visit(Overloaded {
                          [&](const FileContent &content) -> Outcome { return takeContent(content); },
                          [&](const PicturePreview &picture) -> Outcome { return takePicture(picture); },
                          [](NoTextFound) -> Outcome { return NoTextFound {}; },
                          [&](ReaderNotInstalled) { return unreadable(WorkerFailure::NotInstalled); },
                          [&](RecognitionNeeded) { return unreadable(WorkerFailure::Unsafe); },
                          [&](FurtherDecoderNeeded) { return unreadable(WorkerFailure::Unsafe); },
                          [&](const ReadersFound &) { return unreadable(WorkerFailure::Unsafe); },
                      },
        *answer);
}

QCoro::Task<Extraction> IsolatedContentReader::State::read(Shared state, std::filesystem::path path)
{
    co_await state->turns.begin(Turns::Place::AtTheBack);
    const Turn turn(*state);
    if (!state->extractor)
        co_return Unreadable { unsafeMessage() };
    const auto looking = QtConcurrent::run(&state->threads, [path, &flags = state->flags] {
        return look<Extraction>(path, flags, [](const FileDescriptor &file) { return readPlainText(file); });
    });
    const auto firstLook = co_await looking;
    if (const auto *const known = std::get_if<Extraction>(&firstLook))
        co_return *known;
    const OpenedFile file = std::get<OpenedFile>(firstLook);
    WorkerJob job;
    job.extension = lowerCaseExtension(path);
    const WorkerOutcome outcome = co_await askWithAll(state, job, file);
    co_return fromWorker<Extraction>(
        outcome, [](const FileContent &content) { return content; },
        [](const PicturePreview &) { return Unreadable { unsafeMessage() }; });
}

static Preview toPreview(const FileContent &content)
{
    return std::visit(
        Overloaded {
            [](const TextContent &text) -> Preview {
                return TextPreview { firstCharacters(text.text, mostPreviewCharacters, mostPreviewBytes).toString() };
            },
            [](const ImageContent &) -> Preview { return Unreadable { unsafeMessage() }; },
        },
        content);
}

QCoro::Task<Preview> IsolatedContentReader::State::preview(Shared state, std::filesystem::path path, int longestSide)
{
    co_await state->turns.begin(Turns::Place::InFront); // somebody is looking
    const Turn turn(*state);
    if (!state->extractor)
        co_return Unreadable { unsafeMessage() };
    const auto looking = QtConcurrent::run(
        &state->threads, [path, &flags = state->flags] { return look<Preview>(path, flags, readTextPreview); });
    const auto firstLook = co_await looking;
    if (const auto *const known = std::get_if<Preview>(&firstLook))
        co_return *known;
    const OpenedFile file = std::get<OpenedFile>(firstLook);
    const std::string extension = lowerCaseExtension(path);
    WorkerJob job;
    job.kind = isOneOf(officeExtensions, extension) ? WorkerJob::Kind::Extract : WorkerJob::Kind::Preview;
    job.extension = extension;
    job.longestSide = std::clamp(longestSide, 1, longestPreviewSide);
    const WorkerOutcome outcome = co_await askWithAll(state, job, file);
    co_return fromWorker<Preview>(outcome, toPreview, [](const PicturePreview &picture) { return picture; });
}

QCoro::Task<Result<ReadersReport, QString>> IsolatedContentReader::State::inspect(Shared state)
{
    co_await state->turns.begin(Turns::Place::InFront);
    const Turn turn(*state);
    WorkerJob job;
    job.kind = WorkerJob::Kind::Inspect;
    const auto noFile = std::make_shared<const FileDescriptor>();
    const WorkerOutcome outcome = co_await ask(state, job, noFile);
    const auto *const answer = std::get_if<WorkerAnswer>(&outcome);
    if (!answer)
        co_return tl::unexpected(wordsFor(std::get<WorkerFailure>(outcome)).text());
    const auto *const found = std::get_if<ReadersFound>(answer);
    co_return ReadersReport { found ? found->findings : QJsonObject(), state->layers };
}

IsolatedContentReader::IsolatedContentReader(const FileFlags &flags, Options options)
    : m_state(std::make_shared<State>(flags))
{
    const QString program
        = options.program.isEmpty() ? OwnFolders::find().helpers + u"/varlo-extractor"_s : options.program;
    m_state->warn = std::move(options.warn);
    m_state->extractor = std::make_unique<ExtractorProcess>(program, options.limits);
    QObject::connect(m_state->extractor.get(), &ExtractorProcess::lockedIn, m_state->extractor.get(),
        [state = m_state.get()](const SandboxLayers &layers) { state->take(layers); });
}

IsolatedContentReader::~IsolatedContentReader()
{
    m_state->extractor.reset();
    m_state->turns.letEverybodyGo();
    m_state->threads.waitForDone();
}

QCoro::Task<Extraction> IsolatedContentReader::read(std::filesystem::path path)
{
    return State::read(m_state, std::move(path));
}

QCoro::Task<Preview> IsolatedContentReader::preview(std::filesystem::path path, int longestSide)
{
    return State::preview(m_state, std::move(path), longestSide);
}

void IsolatedContentReader::warmUp() { m_state->extractor->warmUp(); }

QCoro::Task<Result<ReadersReport, QString>> IsolatedContentReader::inspect() { return State::inspect(m_state); }

} // namespace Varlo
