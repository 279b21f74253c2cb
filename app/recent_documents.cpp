// SPDX-License-Identifier: MIT
#include "app/recent_documents.h"

#include <QUrl>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include "text/path.h"

namespace zev {

namespace {

constexpr const char* kBookmarks = "http://www.freedesktop.org/standards/desktop-bookmarks";
constexpr const char* kMimeInfo = "http://www.freedesktop.org/standards/shared-mime-info";
constexpr const char* kOwner = "http://freedesktop.org";
constexpr const char* kProgram = "zevmenu-creator";
constexpr const char* kDefinitionType = "application/x-zevmenu-definition";

/// More than any desktop keeps.
constexpr std::uint64_t kMaxListBytes = std::uint64_t{16} << 20;

/// Copies a list, and puts the document into it on the way.
class ListCopy {
  public:
    ListCopy(const QByteArray& list, const std::string& document, const QDateTime& time)
        : m_reader(list),
          m_writer(&m_copy),
          m_address(
              QUrl::fromLocalFile(QString::fromStdString(document)).toString(QUrl::FullyEncoded)),
          m_time(time.toUTC().toString(Qt::ISODate)) {
        m_writer.setAutoFormatting(false);
    }

    QByteArray run() {
        while (m_reader.readNext() != QXmlStreamReader::EndDocument && !m_reader.hasError())
            copyToken();
        return m_reader.hasError() || !m_isList ? QByteArray() : m_copy;
    }

  private:
    void copyToken() {
        if (m_reader.isStartElement())
            copyStart();
        else if (m_reader.isEndElement())
            copyEnd();
        else
            m_writer.writeCurrentToken(m_reader);
    }

    void copyStart() {
        const QStringView name = m_reader.name();
        m_isList = m_isList || name == QLatin1String("xbel");
        if (name == QLatin1String("bookmark") && hasAttribute("href", m_address)) {
            m_isInside = m_isKnown = true;
            writeKnownStart();
        } else if (m_isInside && name == QLatin1String("application") &&
                   hasAttribute("name", kProgram)) {
            m_count = m_reader.attributes().value(QLatin1String("count")).toInt();
            m_reader.skipCurrentElement();
        } else {
            m_writer.writeCurrentToken(m_reader);
        }
    }

    void copyEnd() {
        const QStringView name = m_reader.name();
        if (m_isInside && name == QLatin1String("applications"))
            writeProgram();
        m_isInside = m_isInside && name != QLatin1String("bookmark");
        if (name == QLatin1String("xbel") && !m_isKnown)
            writeNew();
        m_writer.writeCurrentToken(m_reader);
    }

    bool hasAttribute(const char* name, const QString& value) const {
        return m_reader.attributes().value(QLatin1String(name)) == value;
    }

    /// When it was added stays; when it was used is now.
    void writeKnownStart() {
        m_writer.writeStartElement("bookmark");
        for (const QXmlStreamAttribute& attribute : m_reader.attributes()) {
            const bool isUse = attribute.name() == QLatin1String("modified") ||
                               attribute.name() == QLatin1String("visited");
            m_writer.writeAttribute(attribute.qualifiedName().toString(),
                                    isUse ? m_time : attribute.value().toString());
        }
    }

    void writeNew() {
        m_writer.writeStartElement("bookmark");
        m_writer.writeAttribute("href", m_address);
        for (const char* const use : {"added", "modified", "visited"})
            m_writer.writeAttribute(QLatin1String(use), m_time);
        m_writer.writeStartElement("info");
        m_writer.writeStartElement("metadata");
        m_writer.writeAttribute("owner", kOwner);
        m_writer.writeEmptyElement(kMimeInfo, "mime-type");
        m_writer.writeAttribute("type", kDefinitionType);
        m_writer.writeStartElement(kBookmarks, "applications");
        writeProgram();
        for (int open = 0; open < 4; ++open)
            m_writer.writeEndElement();
        m_writer.writeCharacters("\n");
    }

    void writeProgram() {
        m_writer.writeEmptyElement(kBookmarks, "application");
        m_writer.writeAttribute("name", kProgram);
        m_writer.writeAttribute("exec", QString("'%1 %f'").arg(kProgram));
        m_writer.writeAttribute("modified", m_time);
        m_writer.writeAttribute("count", QString::number(m_count + 1));
    }

    QXmlStreamReader m_reader;
    QByteArray m_copy;
    QXmlStreamWriter m_writer;
    QString m_address;
    QString m_time;
    bool m_isList = false;
    bool m_isKnown = false;   ///< the document was in the list
    bool m_isInside = false;  ///< between the tags of its entry
    int m_count = 0;          ///< how often this program had used it
};

QByteArray emptyList() {
    return QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<xbel version=\"1.0\"") +
           " xmlns:bookmark=\"" + kBookmarks + "\" xmlns:mime=\"" + kMimeInfo + "\">\n</xbel>\n";
}

}  // namespace

QByteArray withRecentDocument(const QByteArray& list, const std::string& document,
                              const QDateTime& time) {
    return ListCopy(list.isEmpty() ? emptyList() : list, document, time).run();
}

void noteRecentDocument(FileSystem& files, const std::string& listFile,
                        const std::string& document) {
    if (listFile.empty())
        return;
    if (!files.FileExists(listFile)) {
        // Which documents a person works on is the person's own business.
        if (files.makeFolder(std::string(Path::onThisSystem(listFile).folder())) ||
            files.writeTemporaryFile(listFile, ""))
            return;
    }
    const FileResult<std::string> old = files.readFile(listFile, kMaxListBytes);
    if (!old.isOk())
        return;
    const QByteArray list = withRecentDocument(QByteArray::fromStdString(old.value()), document,
                                               QDateTime::currentDateTimeUtc());
    if (!list.isEmpty())
        files.writeFile(listFile, list.toStdString(), Links::Followed);
}

}  // namespace zev
