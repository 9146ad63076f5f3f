#pragma once

#include "Tutorial/localisation/SampleTable.h"

#include <QString>

#include <functional>

class AuthoringCalls;
class Languages;
class Playback;

/// What the host editor can ask for: a table of command words, each with what is done for it.
class CommandTable
{
public:
    /// What the commands act on. All of it must outlive the commands.
    struct Parts
    {
        Playback &playback;
        AuthoringCalls &authoring;
        Languages &languages;
        std::function<void(const QString &command)> send; ///< sends an answer to the host editor
        QString programFolder;                            ///< where the preset data lie
        SampleTable sampleTable = buildSampleTable();     ///< which of their texts are translated
    };

    explicit CommandTable(Parts parts);

    /// Runs one command; an unknown word is ignored.
    void run(const QString &command);

private:
    Parts m_parts;
};
