#pragma once

#include "richtext/CodePage.h"

#include <QByteArray>
#include <QString>

// Text of one formatting on its way from bytes to characters. Bytes wait, because those of one
// character may come in several tokens; half of a surrogate pair waits, because the other half may
// come in another group.
class RtfText
{
public:
    void addByte(char byte) { m_bytes += byte; }
    void addBytes(QByteArrayView bytes) { m_bytes.append(bytes); }
    // page: the code page of the bytes that were added before.
    void addCharacter(QChar character, int page);

    // What can be handed on, cleaned; with the last call also a half that nothing followed.
    QString take(int page);
    QString takeLast();

private:
    void decode(int page);

    CodePage m_codePage;
    QByteArray m_bytes;
    QString m_text;
};
