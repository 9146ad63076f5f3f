#pragma once

#include "Frames.h"
#include "Tutorial/link/FrameReader.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

/// Writes down what the reader hands over, in order.
class Recorder final : public FrameReader::Sink
{
public:
    bool command(const QString &text) override
    {
        events.append(text);
        return text != stopAt;
    }

    void problem(FrameReader::Problem problem, const QByteArray &bytes) override
    {
        switch (problem) {
        case FrameReader::Problem::kInvalidHeader:
            events.append(QStringLiteral("<invalid header>"));
            break;
        case FrameReader::Problem::kInvalidPayloadSize:
            events.append(QStringLiteral("<invalid size>"));
            break;
        case FrameReader::Problem::kTerminatorNotFound:
            events.append(QStringLiteral("<no terminator>"));
            break;
        }
        problemBytes = bytes;
    }

    QStringList events;
    QByteArray problemBytes;
    QString stopAt = QStringLiteral("bye");
};
