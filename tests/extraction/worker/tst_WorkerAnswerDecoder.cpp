// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/isolation/WorkerAnswerDecoder.h"

#include "extraction/jpegSize.h"
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Varlo;

using State = WorkerAnswerDecoder::State;

class WorkerAnswerDecoderTest : public QObject {
    Q_OBJECT
private slots:
    void takes_data();
    void takes();
    void refuses_data();
    void refuses();
    void measuresJpegs_data();
    void measuresJpegs();
};

static const WorkerJob extractJob { WorkerJob::Kind::Extract, "pdf", false, false, 0 };
static const WorkerJob recognizeJob { WorkerJob::Kind::Extract, "pdf", true, false, 0 };
static const WorkerJob furtherJob { WorkerJob::Kind::Extract, "jpg", false, true, 0 };
static const WorkerJob previewJob { WorkerJob::Kind::Preview, "pdf", false, false, 400 };
static const WorkerJob inspectJob { WorkerJob::Kind::Inspect, "", false, false, 0 };
Q_DECLARE_METATYPE(WorkerJob)

template <typename Message> static QByteArray bytesOf(const Message &message)
{
    return QByteArray(reinterpret_cast<const char *>(&message), sizeof message);
}

static QByteArray header(AnswerKind kind, qsizetype size = 0, qsizetype metadataSize = -1)
{
    AnswerHeader message;
    message.kind = kind;
    message.bytes = static_cast<quint32>(size);
    message.hasMetadata = metadataSize >= 0 ? 1 : 0;
    message.metadataBytes = static_cast<quint32>(std::max<qsizetype>(metadataSize, 0));
    return bytesOf(message);
}

/// The headers of a JPEG: what is in front of the frame header, and that.
static QByteArray jpeg(int width, int height, const QByteArray &front = "\xFF\xE0\x00\x04xx"_ba)
{
    QByteArray frame = "\xFF\xC0\x00\x11\x08"_ba;
    for (const int side : { height, width })
        frame += QByteArray(1, char(side >> 8)) + char(side & 0xFF);
    return "\xFF\xD8"_ba + front + frame + QByteArray(10, 1);
}

/// A picture of so many pixels, or of that and some bytes more.
static QList<QByteArray> pixels(int width, int height, qsizetype moreBytes = 0)
{
    const PixelsHeader size { static_cast<quint16>(width), static_cast<quint16>(height) };
    const QByteArray bytes = bytesOf(size) + QByteArray(qsizetype { width } * height * 3 + moreBytes, 'p');
    return { header(AnswerKind::Pixels, bytes.size()), bytes };
}

static QList<QByteArray> textAnswer(const QString &text)
{
    const QByteArray utf8 = text.toUtf8();
    return { header(AnswerKind::Text, utf8.size()), utf8 };
}

void WorkerAnswerDecoderTest::takes_data()
{
    QTest::addColumn<WorkerJob>("job");
    QTest::addColumn<QList<QByteArray>>("messages");
    const auto row = [](const char *name, const WorkerJob &job, const QList<QByteArray> &messages) {
        QTest::newRow(name) << job << messages;
    };
    const QByteArray started = bytesOf(AnswerStarted { AnswerType::Started, 7, 1 });
    const QByteArray progress = bytesOf(AnswerProgress());
    row("nothing found, after some pages", extractJob, { started, progress, progress, header(AnswerKind::NoText) });
    row("scan", extractJob, { header(AnswerKind::RecognitionNeeded) });
    row("picture of another kind", previewJob, { header(AnswerKind::FurtherDecoderNeeded) });
    row("shortest text", extractJob, textAnswer(u"é"_s.repeated(20)));
    row("longest text", extractJob, textAnswer(u"👩‍👩‍👧‍👦"_s.repeated(8000)));
    row("cut behind a space", extractJob, textAnswer(u"x"_s.repeated(7999) + u' '));
    row("text in pieces", recognizeJob, { header(AnswerKind::Text, 30), "twelve bytes"_ba, " and eighteen more"_ba });
    row("photo", extractJob, { header(AnswerKind::Picture, jpeg(1568, 1568).size(), 3), "EXI"_ba, jpeg(1568, 1568) });
    row("photo without facts", extractJob, { header(AnswerKind::Picture, jpeg(9, 9).size()), jpeg(9, 9) });
    row("page", previewJob, pixels(400, 300));
    row("one pixel", previewJob, pixels(1, 1));
    row("findings", inspectJob, { header(AnswerKind::ReadersFound, 2), "{}" });
}

void WorkerAnswerDecoderTest::takes()
{
    QFETCH(WorkerJob, job);
    QFETCH(QList<QByteArray>, messages);
    WorkerAnswerDecoder decoder(job);
    const QByteArray last = messages.takeLast();
    for (const QByteArray &message : messages)
        QCOMPARE(decoder.take(message), State::Going);
    QCOMPARE(decoder.take(last), State::Complete);
    // Nothing may follow.
    QCOMPARE(decoder.take(last), State::Nonsense);
}

void WorkerAnswerDecoderTest::refuses_data()
{
    QTest::addColumn<WorkerJob>("job");
    QTest::addColumn<QList<QByteArray>>("messages");
    const auto row = [](const char *name, const WorkerJob &job, const QList<QByteArray> &messages) {
        QTest::newRow(name) << job << messages;
    };
    const auto picture = [](const QByteArray &bytes) {
        return QList<QByteArray> { header(AnswerKind::Picture, bytes.size()), bytes };
    };
    const QByteArray started = bytesOf(AnswerStarted());
    const QString twenty = u"x"_s.repeated(20);
    row("empty message", extractJob, { ""_ba });
    row("unknown message", extractJob, { "nonsense"_ba });
    row("begun twice", extractJob, { started, started });
    row("header cut short", extractJob, { header(AnswerKind::NoText).chopped(1) });
    row("unknown kind", extractJob, { header(static_cast<AnswerKind>(8)) });
    row("a GiB", extractJob, { header(AnswerKind::Picture, 1 << 30) });
    row("a GiB of metadata", extractJob, { header(AnswerKind::Picture, 9, 1 << 30) });
    row("more bytes than announced", extractJob, { header(AnswerKind::Text, 30), QByteArray(31, 'x') });
    row("bytes of an answer without any", extractJob, { header(AnswerKind::NoText, 1) });
    row("metadata that was not announced", extractJob, { header(AnswerKind::Text, 20, 3) });
    row("text too short", extractJob, textAnswer(u"x"_s.repeated(19)));
    row("text too long", extractJob, textAnswer(u"x"_s.repeated(8001)));
    row("too many bytes for a text", extractJob, { header(AnswerKind::Text, 256 * 1024 + 1) });
    row("two lines", extractJob, textAnswer(twenty + u'\n' + twenty));
    row("two spaces", extractJob, textAnswer(twenty + u"  "_s + twenty));
    row("space in front", extractJob, textAnswer(u' ' + twenty));
    row("not UTF-8", extractJob, { header(AnswerKind::Text, 20), QByteArray(20, '\xE9') });
    row("half a character", extractJob, { header(AnswerKind::Text, 22), QByteArray(20, 'x') + "\xE6\xBC" });
    row("text for a preview", previewJob, { header(AnswerKind::Text, 20) });
    row("recognition when it was on", recognizeJob, { header(AnswerKind::RecognitionNeeded) });
    row("further decoder when it was there", furtherJob, { header(AnswerKind::FurtherDecoderNeeded) });
    row("findings for a file", extractJob, { header(AnswerKind::ReadersFound, 2) });
    row("findings that are none", inspectJob, { header(AnswerKind::ReadersFound, 2), "[]" });
    row("no JPEG", extractJob, picture(QByteArray(100, 'x')));
    row("too wide", extractJob, picture(jpeg(1569, 9)));
    row("too high", extractJob, picture(jpeg(9, 1569)));
    row("JPEG to be decoded by whoever looks", previewJob, { header(AnswerKind::Picture, jpeg(9, 9).size()) });
    row("pixels for the model", extractJob, { header(AnswerKind::Pixels, 7) });
    row("preview too wide", previewJob, pixels(401, 1));
    row("preview too high", previewJob, pixels(1, 401));
    row("preview without pixels", previewJob, pixels(0, 400));
    row("a byte short of its pixels", previewJob, pixels(9, 9, -1));
    row("a byte more than its pixels", previewJob, pixels(9, 9, +1));
    row("preview without its size", previewJob, { header(AnswerKind::Pixels, 3), "abc"_ba });
    row("preview larger than any", previewJob, { header(AnswerKind::Pixels, 4 + 400 * 400 * 3 + 1) });
    row("metadata that is not UTF-8", extractJob,
        { header(AnswerKind::Picture, jpeg(9, 9).size(), 1), "\xE9" + jpeg(9, 9) });
    QTest::newRow("progress without end") << extractJob << QList<QByteArray>(10'001, bytesOf(AnswerProgress()));
}

void WorkerAnswerDecoderTest::refuses()
{
    QFETCH(WorkerJob, job);
    QFETCH(QList<QByteArray>, messages);
    WorkerAnswerDecoder decoder(job);
    const QByteArray last = messages.takeLast();
    for (const QByteArray &message : messages)
        QCOMPARE(decoder.take(message), State::Going);
    QCOMPARE(decoder.take(last), State::Nonsense);
}

void WorkerAnswerDecoderTest::measuresJpegs_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QSize>("size"); // invalid: none
    QTest::newRow("baseline") << jpeg(640, 480) << QSize(640, 480);
    QTest::newRow("progressive") << jpeg(640, 480).replace("\xFF\xC0", "\xFF\xC2") << QSize(640, 480);
    QTest::newRow("behind tables") << jpeg(640, 480, "\xFF\xC4\x00\x05\xFF\xC0\x01\xFF\xDB\x00\x02"_ba)
                                   << QSize(640, 480);
    QTest::newRow("no pixels") << jpeg(640, 0) << QSize();
    QTest::newRow("scan before the frame") << jpeg(640, 480, "\xFF\xDA\x00\x02"_ba) << QSize();
    QTest::newRow("segment without a length") << jpeg(640, 480, "\xFF\xE0\x00\x01"_ba) << QSize();
    QTest::newRow("segment past the end") << "\xFF\xD8\xFF\xE0\xFF\xFF"_ba << QSize();
}

void WorkerAnswerDecoderTest::measuresJpegs()
{
    QFETCH(QByteArray, bytes);
    QTEST(jpegSize(bytes).value_or(QSize()), "size");
    // However it is cut, nothing behind the end is read.
    for (qsizetype size = 0; size < bytes.size(); ++size)
        (void)jpegSize(QByteArray(bytes.constData(), size));
}

QTEST_APPLESS_MAIN(WorkerAnswerDecoderTest)
#include "tst_WorkerAnswerDecoder.moc"
