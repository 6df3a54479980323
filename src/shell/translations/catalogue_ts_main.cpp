// Writes the English string library source, qd7tdcENU.ts, from the built-in catalogue: each id a
// message whose source and translation are the built-in text and whose disambiguation is the id.

#include "shell/catalogue.h"

#include <QFile>
#include <QSaveFile>
#include <QXmlStreamWriter>

#include <cstdio>

namespace {

void writeCatalogue(QXmlStreamWriter& xml)
{
    xml.setAutoFormatting(true);
    xml.writeStartDocument();
    xml.writeDTD(QStringLiteral("<!DOCTYPE TS>"));
    xml.writeStartElement(QStringLiteral("TS"));
    xml.writeAttribute(QStringLiteral("version"), QStringLiteral("2.1"));
    xml.writeAttribute(QStringLiteral("language"), QStringLiteral("en_US"));
    xml.writeAttribute(QStringLiteral("sourcelanguage"), QStringLiteral("en_US"));
    xml.writeStartElement(QStringLiteral("context"));
    xml.writeTextElement(QStringLiteral("name"), QLatin1String(Catalogue::Context));
    for (int id : Catalogue::builtInIds()) {
        const QString text = Catalogue::builtInText(id);
        xml.writeStartElement(QStringLiteral("message"));
        xml.writeTextElement(QStringLiteral("source"), text);
        xml.writeTextElement(QStringLiteral("comment"), QString::number(id));
        xml.writeTextElement(QStringLiteral("translation"), text);
        xml.writeEndElement();
    }
    xml.writeEndElement();
    xml.writeEndElement();
    xml.writeEndDocument();
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc != 2) {
        std::fputs("usage: qd7_catalogue_ts <qd7tdcENU.ts>\n", stderr);
        return 2;
    }
    QSaveFile file(QFile::decodeName(argv[1]));
    if (!file.open(QIODevice::WriteOnly)) {
        std::fprintf(stderr, "qd7_catalogue_ts: cannot write %s\n", argv[1]);
        return 1;
    }
    QXmlStreamWriter xml(&file);
    writeCatalogue(xml);
    return file.commit() ? 0 : 1;
}
