#pragma once

#include <QtGlobal>

/// Numbers that look accidental and are the same on every machine. A stream and an index name a sequence, so
/// that the n-th record is the same however many others there are.
class TSampleRandom
{
public:
    TSampleRandom(quint64 stream, quint64 index) : state_(Mix(stream * 0x9E3779B97F4A7C15U + index)) {}

    /// From 0 to count - 1; count is at least 1.
    int Below(qsizetype count) { return static_cast<int>(Next() % static_cast<quint64>(count)); }
    /// Both bounds included.
    qint64 Between(qint64 low, qint64 high)
    {
        return low + static_cast<qint64>(Next() % static_cast<quint64>(high - low + 1));
    }
    bool Chance(int percent) { return Below(100) < percent; }
    template <typename TList> const auto& Pick(const TList& list) { return list.at(Below(list.size())); }

private:
    quint64 Next()
    {
        state_ += 0x9E3779B97F4A7C15U;
        return Mix(state_);
    }
    static quint64 Mix(quint64 value)
    {
        value = (value ^ (value >> 30)) * 0xBF58476D1CE4E5B9U;
        value = (value ^ (value >> 27)) * 0x94D049BB133111EBU;
        return value ^ (value >> 31);
    }

    quint64 state_;
};
