#pragma once

#include <QByteArray>
#include <QtEndian>

#include <vector>

namespace veldmark {

struct ZipMember {
    QByteArray name;
    QByteArray content;
    bool isDeflated = false;
};

// The place of the list of members: at the end, as usual, or in front, as in browsers' archives
// that are mapped into memory.
enum class ZipLayout { directoryLast, directoryFirst };

// The bytes of a ZIP archive.
inline QByteArray zipArchive(const std::vector<ZipMember> &members,
                             ZipLayout layout = ZipLayout::directoryLast)
{
    const auto little = [](auto value) {
        QByteArray bytes(sizeof value, '\0');
        qToLittleEndian(value, bytes.data());
        return bytes;
    };
    const auto crc = [](const QByteArray &content) {
        quint32 sum = 0xffffffffU;
        for (const char c : content) {
            sum ^= quint8(c);
            for (int bit = 0; bit < 8; ++bit)
                sum = (sum >> 1) ^ (0xedb88320U & (0U - (sum & 1U)));
        }
        return ~sum;
    };

    // The size of the directory is known before it is filled.
    quint32 directorySize = 0;
    for (const ZipMember &member : members)
        directorySize += 46U + quint32(member.name.size());
    const quint32 front = layout == ZipLayout::directoryFirst ? 4U + directorySize + 22U : 0U;

    QByteArray entries;
    QByteArray directory;
    for (const ZipMember &member : members) {
        // qCompress: four bytes of size, a zlib stream with two bytes of header and four of sum.
        const QByteArray stored = member.isDeflated ? qCompress(member.content).sliced(6).chopped(4)
                                                    : member.content;
        const QByteArray common = little(quint16(20)) + little(quint16(0))
            + little(quint16(member.isDeflated ? 8 : 0)) + little(quint16(0))
            + little(quint16(0x21)) + little(crc(member.content)) + little(quint32(stored.size()))
            + little(quint32(member.content.size())) + little(quint16(member.name.size()))
            + little(quint16(0));
        directory += "PK\1\2" + little(quint16(20)) + common + QByteArray(10, '\0')
            + little(quint32(front + quint32(entries.size()))) + member.name;
        entries += "PK\3\4" + common + member.name + stored;
    }
    const auto end = [&](quint32 offset) {
        return QByteArray("PK\5\6") + little(quint32(0)) + little(quint16(members.size()))
            + little(quint16(members.size())) + little(directorySize) + little(offset)
            + little(quint16(0));
    };
    if (layout == ZipLayout::directoryFirst)
        return little(front) + directory + end(4) + entries + end(4);
    return entries + directory + end(quint32(entries.size()));
}

} // namespace veldmark
