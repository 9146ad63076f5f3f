#pragma once

#include <QByteArray>
#include <QtGlobal>

/// Binary patches, put together for tests by what their format says.
namespace PatchBytes {

/// The longest piece that one operation with two bytes of length inserts or copies.
constexpr int kLongestPiece = 65536;

inline QByteArray littleEndian(quint32 number, int width)
{
    QByteArray bytes;
    for (int i = 0; i < width; ++i) {
        bytes.append(char(number >> (8 * i) & 0xFF));
    }
    return bytes;
}

/// The header of a patch to a target of @p size bytes.
inline QByteArray header(quint32 size)
{
    return littleEndian(size, 4);
}

/// A patch to @p target that needs no base.
inline QByteArray insertion(const QByteArray &target)
{
    QByteArray patch = header(quint32(target.size()));
    for (int at = 0; at < target.size(); at += kLongestPiece) {
        const QByteArray piece = target.mid(at, kLongestPiece);
        patch += '\x01' + littleEndian(quint32(piece.size() - 1), 2) + piece;
    }
    return patch;
}

/// A patch to the first @p size bytes of the base.
inline QByteArray copy(int size)
{
    QByteArray patch = header(quint32(size));
    for (int at = 0; at < size; at += kLongestPiece) {
        patch += '\xfa' + littleEndian(quint32(at), 4) +
                 littleEndian(quint32(qMin(kLongestPiece, size - at) - 1), 2);
    }
    return patch;
}

} // namespace PatchBytes
