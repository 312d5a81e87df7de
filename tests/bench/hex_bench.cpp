// hex_bench: milliseconds from the choice of a record to its picture in the hex pane, for a small record, for the
// longest one, and for a change of the code page. Run it with QT_QPA_PLATFORM=offscreen.

#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QScrollBar>
#include <QTemporaryFile>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>
#include <vector>

#include "viewers/hex_pane.h"

namespace {

using namespace folioscope;

constexpr int kRounds = 41;
constexpr std::int32_t kStart = 1000, kLongest = 32'767;

// In milliseconds, those of the processor beside those of the clock. The first round, which loads the fonts, isn't
// counted.
void Measure(const char* name, const std::function<void(int round)>& step)
{
    std::vector<double> times;
    std::clock_t processor = 0;
    step(0);
    for (int i = 1; i <= kRounds; ++i) {
        QElapsedTimer timer;
        timer.start();
        processor -= std::clock();
        step(i);
        QApplication::processEvents();
        processor += std::clock();
        times.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    std::sort(times.begin(), times.end());
    std::printf("%-10s median %6.2f ms  worst %6.2f ms  processor %6.2f ms\n", name, times[kRounds / 2], times.back(),
                1e3 * static_cast<double>(processor) / CLOCKS_PER_SEC / kRounds);
}

QByteArray Content()
{
    QByteArray content;
    for (int i = 0; i < 100'000; ++i) content += static_cast<char>(i * 31 + i / 256);
    return content;
}

}  // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QTemporaryFile file;
    if (!file.open() || file.write(Content()) < 0 || !file.flush()) return 1;

    HexPane pane(500, Labels(Language::English), nullptr);
    pane.SetFile(file.fileName());
    pane.resize(1000, 200);
    pane.show();
    QApplication::processEvents();
    Measure("small", [&](int i) { pane.ShowRecord(kStart + i, 120); });
    Measure("longest", [&](int i) { pane.ShowRecord(kStart + i, kLongest); });
    auto* const pages = pane.findChild<QComboBox*>(QStringLiteral("cmbHexCodepage"));
    Measure("code page", [&](int i) { pages->setCurrentIndex(i); });
    auto* const lines = pane.findChild<QScrollBar*>(QStringLiteral("sclHex"));
    Measure("scrolling", [&](int i) { lines->setValue(i * 40); });
    Measure("width", [&](int i) { pane.SetWindowWidth(i % 2 == 0 ? 700 : 1200); });
    return 0;
}
