#pragma once

#include <QElapsedTimer>
#include <QString>
#include <QStringList>
#include <QVector>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <limits>

/// What the benchmark programs share: pairs of our work and the limit that it is held against,
/// measured in turn in one process, and a table of their ratios. Times are in milliseconds.
namespace Bench {

struct Quartiles
{
    double lower = 0;
    double median = 0;
    double upper = 0;
};

inline Quartiles quartiles(QVector<double> values)
{
    std::sort(values.begin(), values.end());
    const auto at = [&values](double part) {
        return values.at(static_cast<int>(part * (values.size() - 1) + 0.5));
    };
    return {at(0.25), at(0.5), at(0.75)};
}

/// Milliseconds that the work takes.
template<typename Work>
double measure(const Work &work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

/// The same of processor time, for work that waits for nothing: what else runs on the machine does
/// not count.
template<typename Work>
double measureProcessor(const Work &work)
{
    const auto now = [] {
        timespec time{};
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
    };
    const double start = now();
    work();
    return now() - start;
}

/// The goal of a line that is there to be read.
constexpr double NoGoal = std::numeric_limits<double>::infinity();

/// One line of the table: an operation on n things.
struct Row
{
    QString operation;
    int n = 0;
    double goal = 0; ///< largest ratio of ours to the limit that holds; NoGoal for any
};

class Table
{
public:
    static constexpr int DefaultPairs = 15;

    /// The program's arguments: with --check the result of finish() says whether every goal holds.
    explicit Table(const QStringList &arguments)
        : m_check(arguments.contains(QStringLiteral("--check")))
    {
        std::printf("%-44s %7s %11s %11s %8s %17s %8s %s\n", "operation", "n", "limit", "ours",
                    "ratio", "quartiles", "goal", "holds");
    }

    /// Measures limit, ours, limit, ours, ... after a pair that does not count, and adds the line
    /// of the medians. The works must leave things as they were.
    template<typename Limit, typename Ours>
    void add(const Row &row, const Limit &limit, const Ours &ours, int pairs = DefaultPairs)
    {
        addFigures(
            row, [&limit] { return measure(limit); }, [&ours] { return measure(ours); }, pairs);
    }

    /// The same for works that return their figure themselves: milliseconds of a part of them, or
    /// something else than time.
    template<typename Limit, typename Ours>
    void addFigures(const Row &row, const Limit &limit, const Ours &ours, int pairs = DefaultPairs)
    {
        QVector<double> limits;
        QVector<double> own;
        QVector<double> ratios;
        limit();
        ours();
        for (int i = 0; i < pairs; ++i) {
            limits.append(limit());
            own.append(ours());
            ratios.append(own.constLast() / limits.constLast());
        }
        print(row, quartiles(limits).median, quartiles(own).median, quartiles(ratios));
    }

    /// The exit status of the program.
    int finish() const { return m_check && m_missed > 0 ? 1 : 0; }

private:
    void print(const Row &row, double limit, double own, const Quartiles &ratio)
    {
        const bool holds = ratio.median <= row.goal;
        m_missed += holds ? 0 : 1;
        std::printf("%-44s %7d %11.4f %11.4f %8.4f %8.4f-%8.4f ", qUtf8Printable(row.operation),
                    row.n, limit, own, ratio.median, ratio.lower, ratio.upper);
        if (row.goal == NoGoal)
            std::printf("%8s -\n", "-");
        else
            std::printf("%8.3f %s\n", row.goal, holds ? "yes" : "NO");
        std::fflush(stdout);
    }

    bool m_check = false;
    int m_missed = 0;
};

} // namespace Bench
