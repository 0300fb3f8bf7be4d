# SPDX-FileCopyrightText: The Varlo developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Scanned documents made from texts: pages set by LibreOffice or Pango, as pictures in a PDF without a text layer."""
import pathlib
import subprocess
from xml.sax.saxutils import escape

DPI = 300
A4 = (2480, 3508)  # pixels at 300 dpi

FODT = """<?xml version="1.0" encoding="UTF-8"?>
<office:document xmlns:office="urn:oasis:names:tc:opendocument:xmlns:office:1.0"
 xmlns:style="urn:oasis:names:tc:opendocument:xmlns:style:1.0" xmlns:text="urn:oasis:names:tc:opendocument:xmlns:text:1.0"
 xmlns:fo="urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0" office:version="1.3"
 office:mimetype="application/vnd.oasis.opendocument.text">
<office:styles><style:default-style style:family="paragraph">
<style:paragraph-properties fo:margin-bottom="0.3cm"/>
<style:text-properties style:font-name="{font}" fo:font-family="{font}" fo:font-size="{size}pt"/>
</style:default-style></office:styles>
<office:automatic-styles><style:page-layout style:name="page"><style:page-layout-properties
 fo:page-width="21cm" fo:page-height="29.7cm" fo:margin="2.2cm"/></style:page-layout></office:automatic-styles>
<office:master-styles><style:master-page style:name="Standard" style:page-layout-name="page"/></office:master-styles>
<office:body><office:text>{paragraphs}</office:text></office:body></office:document>
"""


def run(*command, **options):
    return subprocess.run([str(part) for part in command], check=True, capture_output=True, **options)


def set_by_libreoffice(text, size, folder, font="Liberation Serif"):
    """A grey PNG of the text's first page."""
    paragraphs = "".join(f"<text:p>{escape(line)}</text:p>" for line in text.splitlines() if line)
    source = folder / "page.fodt"
    source.write_text(FODT.format(font=font, size=size, paragraphs=paragraphs), encoding="utf-8")
    run("soffice", f"-env:UserInstallation={(folder / 'profile').as_uri()}", "--headless", "--convert-to", "pdf",
        "--outdir", folder, source)
    page = folder / "libreoffice.png"
    run("gs", "-q", "-dSAFER", "-dBATCH", "-dNOPAUSE", "-sDEVICE=pnggray", "-dTextAlphaBits=4", "-dLastPage=1",
        f"-r{DPI}", f"-sOutputFile={page}", folder / "page.pdf")
    return page


def set_by_pango(text, size, folder, font="DejaVu Sans"):
    """A grey PNG of an A4 page with the text."""
    source, drawn, page = folder / "page.txt", folder / "drawn.png", folder / "pango.png"
    source.write_text(text, encoding="utf-8")
    run("pango-view", "--no-display", f"--dpi={DPI}", f"--font={font} {size}", "--width=470", "--margin=0",
        f"--output={drawn}", source)
    run("convert", drawn, "-colorspace", "Gray", "-background", "white", "-gravity", "center", "-extent",
        f"{A4[0]}x{A4[1]}", page)
    return page


def scan_badly(page, degrees=2):
    """The page askew, with a scanner's noise."""
    noisy = page.with_name("noisy.png")
    run("convert", page, "-background", "white", "-rotate", str(degrees), "-seed", "7", "-attenuate", "0.5", "+noise",
        "Gaussian", "-colorspace", "Gray", noisy)
    return noisy


def write_scan(pages, path, dpi=DPI, quality=85):
    """A PDF of the pictures, each a JPEG that fills its page."""
    objects = [b"<< /Type /Catalog /Pages 2 0 R >>", b""]
    kids = []
    for page in pages:
        size = run("identify", "-format", "%w %h", page).stdout.split()
        width, height = (int(side) for side in size)
        jpeg = run("convert", page, "-quality", str(quality), "jpeg:-").stdout
        points = b"%.2f %.2f" % (width * 72 / dpi, height * 72 / dpi)
        content = b"%.2f 0 0 %.2f 0 0 cm /I Do" % (width * 72 / dpi, height * 72 / dpi)
        number = len(objects) + 1
        kids.append(b"%d 0 R" % number)
        objects += [
            b"<< /Type /Page /Parent 2 0 R /MediaBox [0 0 %s] /Contents %d 0 R /Resources << /XObject << /I %d 0 R "
            b">> >> >>" % (points, number + 1, number + 2),
            b"<< /Length %d >>\nstream\n%s\nendstream" % (len(content), content),
            b"<< /Type /XObject /Subtype /Image /Width %d /Height %d /ColorSpace /DeviceGray /BitsPerComponent 8 "
            b"/Filter /DCTDecode /Length %d >>\nstream\n%s\nendstream" % (width, height, len(jpeg), jpeg),
        ]
    objects[1] = b"<< /Type /Pages /Count %d /Kids [ %s ] >>" % (len(kids), b" ".join(kids))
    write_pdf(objects, path)


def write_pdf(objects, path):
    """The objects, numbered from 1, the catalog first."""
    with open(path, "wb") as file:
        file.write(b"%PDF-1.4\n")
        table = [b"0000000000 65535 f \n"]
        for number, body in enumerate(objects, 1):
            table.append(b"%010d 00000 n \n" % file.tell())
            file.write(b"%d 0 obj\n%s\nendobj\n" % (number, body))
        start = file.tell()
        file.write(b"xref\n0 %d\n%strailer\n<< /Size %d /Root 1 0 R >>\nstartxref\n%d\n%%%%EOF\n"
                   % (len(table), b"".join(table), len(table), start))


def read_texts():
    """The texts to set, by language."""
    folder = pathlib.Path(__file__).with_name("words")
    return {path.stem: path.read_text(encoding="utf-8") for path in sorted(folder.glob("*.txt"))}
