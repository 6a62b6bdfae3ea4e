#pragma once

#include <QByteArray>
#include <QList>
#include <QtEndian>

#include <utility>

// TrueType fonts made for a test, of tables that it can change before bytes() puts them together.
struct MadeFont
{
    QByteArray version = QByteArray("\0\1\0\0", 4);
    QList<std::pair<QByteArray, QByteArray>> tables; // tag, data

    QByteArray &table(const QByteArray &tag)
    {
        for (auto &[name, data] : tables) {
            if (name == tag)
                return data;
        }
        return tables.emplaceBack(tag, QByteArray()).second;
    }
    void remove(const QByteArray &tag)
    {
        tables.removeIf([&tag](const auto &table) { return table.first == tag; });
    }

    // The directory, as if the file began `offset` bytes before it, and the tables behind it.
    QByteArray bytes(qsizetype offset = 0) const
    {
        QByteArray directory = version + big16(int(tables.size())) + QByteArray(6, '\0');
        QByteArray data;
        const qsizetype dataAt = offset + directory.size() + 16 * tables.size();
        for (const auto &[tag, table] : tables) {
            directory +=
                tag + big32(0x01020304) + big32(dataAt + data.size()) + big32(table.size());
            data += table + QByteArray((4 - table.size() % 4) % 4, '\0');
        }
        return directory + data;
    }

    static QByteArray big16(int number)
    {
        const quint16 big = qToBigEndian(static_cast<quint16>(number));
        return {reinterpret_cast<const char *>(&big), 2};
    }
    static QByteArray big32(qint64 number)
    {
        const quint32 big = qToBigEndian(static_cast<quint32>(number));
        return {reinterpret_cast<const char *>(&big), 4};
    }
    static void put16(QByteArray &table, qsizetype offset, int number)
    {
        table.replace(offset, 2, big16(number));
    }

    // A 'post' table of format 2.0; each name is the glyph's own.
    static QByteArray postWithNames(const QList<QByteArray> &names)
    {
        QByteArray post = big32(0x00020000) + QByteArray(28, '\0') + big16(int(names.size()));
        QByteArray strings;
        for (qsizetype i = 0; i < names.size(); ++i) {
            post += big16(258 + int(i));
            strings += char(names[i].size()) + names[i];
        }
        return post + strings;
    }

    // `glyphs` glyphs of `glyphBytes` bytes each, named .notdef, g1, g2, ...; long 'loca'.
    static MadeFont withGlyphs(int glyphs, qsizetype glyphBytes)
    {
        MadeFont font;
        QByteArray head = big32(0x00010000) + big32(0x00018000) + big32(0) + big32(0x5F0F3CF5);
        head += big16(0) + big16(1000) + QByteArray(16, '\0');
        head += big16(-100) + big16(-200) + big16(1000) + big16(800);
        head += QByteArray(6, '\0') + big16(1) + big16(0);
        font.tables.append({"head", head});
        font.tables.append({"maxp", big32(0x00010000) + big16(glyphs)});
        font.tables.append({"name", QByteArray(6, '\0')});
        QByteArray loca, glyf;
        QList<QByteArray> names{".notdef"};
        for (int i = 0; i < glyphs; ++i) {
            loca += big32(glyf.size());
            glyf += QByteArray(glyphBytes, char('A' + i % 26));
            if (i > 0)
                names << "g" + QByteArray::number(i);
        }
        font.tables.append({"loca", loca + big32(glyf.size())});
        font.tables.append({"glyf", glyf});
        font.tables.append({"post", postWithNames(names)});
        return font;
    }
};
