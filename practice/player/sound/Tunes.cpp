#include "player/sound/Tunes.h"

#include <QDataStream>
#include <QIODevice>
#include <QVector>
#include <QtMath>

#include <algorithm>
#include <array>

namespace player {

namespace {

using Samples = QVector<double>;

constexpr int kRate = Tunes::kSamplesPerSecond;
constexpr double kLowestTone = 110; // A

/// What a tune is like. All of them are eight bars of four beats.
struct Mood
{
    const char *name;
    int beatsPerMinute;
    bool isMinor;
    /// Half tones above the lowest tone.
    int key;
};
constexpr std::array<Mood, 11> kMoods = {{{"title", 84, true, 0},
                                          {"village", 108, false, 3},
                                          {"home", 92, false, 5},
                                          {"forest", 96, true, 2},
                                          {"evening", 72, false, 0},
                                          {"cave", 66, true, -2},
                                          {"spring", 88, false, 7},
                                          {"battle", 148, true, 4},
                                          {"boss", 160, true, 1},
                                          {"victory", 132, false, 5},
                                          {"sea", 80, false, 2}}};

/// A noise: tones that follow each other, in hertz, how long all of it is, and how much of it hisses.
struct Noise
{
    const char *name;
    std::array<int, 4> tones;
    int milliseconds;
    double hiss;
};
constexpr std::array<Noise, 12> kNoises = {{{"cursor", {880, 880, 880, 880}, 40, 0},
                                            {"decide", {660, 660, 990, 990}, 110, 0},
                                            {"door", {160, 120, 90, 70}, 320, 0.4},
                                            {"chest", {392, 523, 659, 784}, 420, 0},
                                            {"lever", {220, 180, 330, 110}, 180, 0.5},
                                            {"steps", {110, 90, 110, 90}, 200, 0.8},
                                            {"coins", {1319, 1760, 1319, 1976}, 240, 0.05},
                                            {"heal", {523, 659, 784, 1047}, 520, 0},
                                            {"hit", {180, 120, 90, 60}, 170, 0.9},
                                            {"magic", {440, 660, 880, 1320}, 460, 0.1},
                                            {"thunder", {70, 60, 50, 40}, 900, 0.95},
                                            {"bell", {1047, 1047, 1047, 1047}, 900, 0}}};

/// Numbers that look thrown, the same for the same seed.
class Dice
{
public:
    explicit Dice(const QString &seed)
    {
        for (const QChar letter : seed) {
            m_state = (m_state ^ letter.unicode()) * 16777619U;
        }
    }
    int below(int limit)
    {
        m_state = m_state * 1664525U + 1013904223U;
        return int((m_state >> 8U) % quint32(limit));
    }
    /// From -1 to 1.
    double swing() { return below(20001) / 10000.0 - 1; }

private:
    quint32 m_state = 2166136261U;
};

template<typename Table>
typename Table::value_type entryOf(const Table &table, const QString &name, Dice *dice)
{
    const auto found = std::find_if(table.cbegin(), table.cend(),
                                    [&name](const auto &entry) { return name == QLatin1String(entry.name); });
    return found != table.cend() ? *found : table.at(size_t(dice->below(int(table.size()))));
}

double toneOf(int halfTones)
{
    return kLowestTone * qPow(2, halfTones / 12.0);
}

/// A tone and two above it, softer, as something that is plucked has them. Each wave is worked out from the
/// two values before it, as a sine for each sample would take ten times as long.
class Pluck
{
public:
    explicit Pluck(double hertz)
    {
        constexpr std::array<double, 3> kShares = {1, 0.3, 0.1};
        for (size_t above = 0; above < m_waves.size(); ++above) {
            const double angle = 2 * M_PI * hertz * double(above + 1) / kRate;
            m_waves.at(above) = {2 * qCos(angle), -kShares.at(above) * qSin(angle), 0};
        }
    }
    double next()
    {
        double sum = 0;
        for (Wave &wave : m_waves) {
            const double value = wave.factor * wave.last - wave.beforeLast;
            wave.beforeLast = wave.last;
            wave.last = value;
            sum += wave.beforeLast;
        }
        return sum;
    }

private:
    struct Wave
    {
        double factor = 0;
        double beforeLast = 0;
        double last = 0;
    };
    std::array<Wave, 3> m_waves;
};

/// Adds a tone that fades away, from @p start on, around the end to the beginning.
void addTone(Samples *samples, int start, int length, double hertz, double loudness)
{
    Pluck pluck(hertz);
    const double fading = qExp(-3.0 / length);
    double rest = loudness;
    for (int i = 0; i < length; ++i) {
        const double swell = qMin(1.0, i / 120.0) * rest;
        rest *= fading;
        (*samples)[(start + i) % samples->size()] += pluck.next() * swell;
    }
}

QByteArray wav(const Samples &samples, int pan)
{
    constexpr int kChannels = 2;
    constexpr int kBytes = 2;
    const double right = qBound(-100, pan, 100) / 100.0;
    const auto length = quint32(samples.size()) * kChannels * kBytes;
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream.writeRawData("RIFF", 4);
    stream << quint32(36 + length);
    stream.writeRawData("WAVEfmt ", 8);
    stream << quint32(16) << quint16(1) << quint16(kChannels) << quint32(kRate)
           << quint32(kRate * kChannels * kBytes) << quint16(kChannels * kBytes) << quint16(kBytes * 8);
    stream.writeRawData("data", 4);
    stream << length;
    for (const double sample : samples) {
        const double loud = qBound(-1.0, sample, 1.0) * 32000;
        stream << qint16(loud * qMin(1.0, 1 - right)) << qint16(loud * qMin(1.0, 1 + right));
    }
    return bytes;
}

/// How much faster and higher.
double speedOf(const Sound &sound)
{
    return qBound(50, sound.pitch, 150) / 100.0;
}

} // namespace

QByteArray Tunes::music(const Sound &sound)
{
    constexpr int kBars = 8;
    constexpr int kBeats = 4;
    constexpr std::array<int, 5> kMajor = {0, 2, 4, 7, 9};
    constexpr std::array<int, 5> kMinor = {0, 3, 5, 7, 10};
    constexpr std::array<int, 4> kRoots = {0, 9, 5, 7};
    Dice dice(sound.file);
    const Mood mood = entryOf(kMoods, sound.file, &dice);
    const std::array<int, 5> &scale = mood.isMinor ? kMinor : kMajor;
    const int beat = int(kRate * 60 / (mood.beatsPerMinute * speedOf(sound)));
    Samples samples(beat * kBeats * kBars, 0.0);
    int step = 5;
    for (int bar = 0; bar < kBars; ++bar) {
        const int start = bar * kBeats * beat;
        const int root = mood.key + kRoots.at(size_t(bar % 4)) - (bar % 4 > 0 ? 12 : 0);
        addTone(&samples, start, 3 * beat, toneOf(root), 0.22);
        addTone(&samples, start + 2 * beat, 2 * beat, toneOf(root + 7), 0.14);
        for (int half = 0; half < 2 * kBeats; ++half) {
            // The last bar of four rests on its first tone.
            if (dice.below(3) == 0 || (bar % 4 == 3 && half > 2)) {
                continue;
            }
            step = qBound(3, step + dice.below(5) - 2, 12);
            const int tone = mood.key + 12 + scale.at(size_t(step % 5)) + 12 * (step / 5);
            addTone(&samples, start + half * beat / 2, beat, toneOf(tone) * speedOf(sound), 0.16);
        }
    }
    return wav(samples, sound.pan);
}

QByteArray Tunes::noise(const Sound &sound)
{
    Dice dice(sound.file);
    const Noise noise = entryOf(kNoises, sound.file, &dice);
    const int length = int(kRate * noise.milliseconds / (1000 * speedOf(sound)));
    Samples samples(length, 0.0);
    double phase = 0;
    for (int i = 0; i < length; ++i) {
        const double part = double(i) / length;
        phase += 2 * M_PI * noise.tones.at(size_t(part * 4)) * speedOf(sound) / kRate;
        const double swell = qMin(1.0, i / 60.0) * qExp(-4.0 * part) * qMin(1.0, (length - i) / 60.0);
        samples[i] = (qSin(phase) * (1 - noise.hiss) + dice.swing() * noise.hiss) * swell * 0.6;
    }
    return wav(samples, sound.pan);
}

} // namespace player
