// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/FileDescriptor.h"
#include <QByteArray>
#include <QList>
#include <QStringList>
#include <sys/mman.h>

namespace Varlo {

struct TestPage {
    QByteArray content; ///< operators of the content stream
    QByteArray attributes = "/MediaBox [0 0 595 842]"; ///< of the page's dictionary
};

/// The objects, numbered from 1, as a file with a cross-reference table. The first one is the catalog.
inline QByteArray writePDF(const QList<QByteArray> &objects)
{
    QByteArray pdf = "%PDF-1.7\n";
    QByteArray table = "0000000000 65535 f \n";
    for (int number = 1; number <= objects.size(); ++number) {
        table += QByteArray::number(pdf.size()).rightJustified(10, '0') + " 00000 n \n";
        pdf += QByteArray::number(number) + " 0 obj\n" + objects[number - 1] + "\nendobj\n";
    }
    const QByteArray count = QByteArray::number(objects.size() + 1);
    return pdf + "xref\n0 " + count + '\n' + table + "trailer\n<< /Size " + count + " /Root 1 0 R >>\nstartxref\n"
        + QByteArray::number(pdf.size()) + "\n%%EOF\n";
}

inline QByteArray streamObject(const QByteArray &bytes, const QByteArray &attributes = {})
{
    return "<< /Length " + QByteArray::number(bytes.size()) + ' ' + attributes + " >>\nstream\n" + bytes
        + "\nendstream";
}

/// A document of these pages; /F is Helvetica. `catalog` goes into the catalog's dictionary.
inline QByteArray pagesPDF(const QList<TestPage> &pages, const QByteArray &catalog = {})
{
    QList<QByteArray> objects { "<< /Type /Catalog /Pages 2 0 R " + catalog + " >>", {},
        "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica /Encoding /WinAnsiEncoding >>" };
    QByteArray kids;
    for (const TestPage &page : pages) {
        kids += QByteArray::number(objects.size() + 1) + " 0 R ";
        objects += "<< /Type /Page /Parent 2 0 R /Resources << /Font << /F 3 0 R >> >> " + page.attributes
            + " /Contents " + QByteArray::number(objects.size() + 2) + " 0 R >>";
        objects += streamObject(page.content);
    }
    objects[1] = "<< /Type /Pages /Count " + QByteArray::number(pages.size()) + " /Kids [ " + kids + "] >>";
    return writePDF(objects);
}

/// The operators that set the lines one below the other, from `left` points and the top of an A4 page on.
inline QByteArray column(const QStringList &lines, int left = 40, int size = 10)
{
    QByteArray content = "BT /F " + QByteArray::number(size)
        + " Tf "
          "1 0 0 1 "
        + QByteArray::number(left) + " 800 Tm " + QByteArray::number(size * 1.25) + " TL\n";
    for (const QString &line : lines) {
        QByteArray escaped = line.toLatin1();
        escaped.replace('\\', "\\\\").replace('(', "\\(").replace(')', "\\)");
        content += '(' + escaped + ") Tj T*\n";
    }
    return content + "ET\n";
}

/// The words broken into lines of at most `width` characters.
inline QStringList wrapped(const QString &text, qsizetype width = 90)
{
    QStringList lines(1);
    for (const QString &word : text.split(u' ')) {
        if (!lines.last().isEmpty() && lines.last().size() + 1 + word.size() > width)
            lines.append(QString());
        lines.last() += lines.last().isEmpty() ? word : u' ' + word;
    }
    return lines;
}

/// A document whose pages bear these texts.
inline QByteArray textPDF(const QStringList &texts)
{
    QList<TestPage> pages;
    for (const QString &text : texts)
        pages.append({ column(wrapped(text)) });
    return pagesPDF(pages);
}

/// An open file without a name.
inline FileDescriptor fileOf(const QByteArray &bytes)
{
    FileDescriptor file(::memfd_create("sample", MFD_CLOEXEC));
    if (::write(file.get(), bytes.constData(), static_cast<size_t>(bytes.size())) != bytes.size())
        qFatal("cannot write the sample");
    return file;
}

} // namespace Varlo
