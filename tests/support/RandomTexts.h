#pragma once

#include <QRandomGenerator>
#include <QString>

/// Texts for tests with a fixed seed.
class TRandomTexts
{
public:
    explicit TRandomTexts(quint32 seed) : random_(seed) {}

    int Number(int below) { return static_cast<int>(random_.bounded(below)); }
    /// Letters that read alike, digits of three scripts, wildcards, quotes, letters of both cases, an emoji.
    QString Mixed(int longest);
    /// Any Unicode characters but null and halves of surrogate pairs.
    QString Unicode(int longest);

private:
    QRandomGenerator random_;
};
