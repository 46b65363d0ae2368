// The time to cut Tor's status of 10,000 circuits into lines.
//
//     FramingBench [REPETITIONS]
//
// The bytes come in chunks of 64 KiB, as a connection reads them. One line of JSON on standard
// output; times in milliseconds.

#include "control/ReplyFraming.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <vector>

using namespace veldmark;

namespace {

constexpr int circuits = 10'000;
constexpr qsizetype chunkBytes = 65'536;

QByteArray circuitStatus()
{
    std::mt19937 random(1);
    const auto hop = [&random](int number) {
        QByteArray fingerprint;
        for (int i = 0; i < 40; ++i)
            fingerprint += "0123456789ABCDEF"[random() % 16];
        return '$' + fingerprint + "~relay" + QByteArray::number(number);
    };
    QByteArray status = "250+circuit-status=\r\n";
    for (int i = 1; i <= circuits; ++i) {
        status += QByteArray::number(i) + " BUILT " + hop(3 * i) + ',' + hop(3 * i + 1) + ','
            + hop(3 * i + 2) + " PURPOSE=GENERAL TIME_CREATED=2025-01-01T12:00:00.123456\r\n";
    }
    return status + ".\r\n250 OK\r\n";
}

// Milliseconds for one reply; ends the program when the reply is incomplete.
double measure(const QByteArray &status)
{
    const auto begin = std::chrono::steady_clock::now();
    ReplyFraming framing;
    std::optional<QStringList> lines;
    for (qsizetype at = 0; at < status.size() && !lines; at += chunkBytes) {
        framing.feed(QByteArrayView(status).sliced(at, std::min(chunkBytes, status.size() - at)));
        auto reply = framing.nextReply();
        if (!reply)
            break;
        lines = std::move(*reply);
    }
    const std::chrono::duration<double, std::milli> taken = std::chrono::steady_clock::now()
        - begin;
    if (!lines || lines->size() != circuits + 3) {
        std::fprintf(stderr, "the reply was not framed\n");
        std::exit(1);
    }
    return taken.count();
}

} // namespace

int main(int argc, char **argv)
{
    const int repetitions = argc > 1 ? std::atoi(argv[1]) : 51;
    if (repetitions < 1) {
        std::fprintf(stderr, "usage: FramingBench [REPETITIONS]\n");
        return 2;
    }
    const QByteArray status = circuitStatus();
    std::vector<double> times;
    for (int i = 0; i < repetitions; ++i)
        times.push_back(measure(status));
    std::sort(times.begin(), times.end());
    std::printf("{\"benchmark\":\"framing\",\"lines\":%d,\"bytes\":%lld,\"repetitions\":%d,"
                "\"median_ms\":%.3f,\"min_ms\":%.3f,\"max_ms\":%.3f}\n",
                circuits, static_cast<long long>(status.size()), repetitions,
                times[times.size() / 2], times.front(), times.back());
}
