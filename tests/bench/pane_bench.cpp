// pane_bench: milliseconds from a property text to its picture, for a selection of the usual size, for the longest
// text there is, and for one that changes its look at every word. Run it with QT_QPA_PLATFORM=offscreen.

#include <QApplication>
#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/render/property_text.h"
#include "shell/property_pane.h"

namespace {

using namespace folioscope;

constexpr int kRounds = 41;

std::string TextOf(std::size_t characters, std::string_view line)
{
    PropertyText text;
    text.Append("Structured Field:\t°^°B~PTX (Presentation Text Data, x'D3 EE 9B')°^°N~\r\n");
    text.Append("Start byte:\t12,345   (x'00 00 30 39')\r\n");
    text.Append("Length:\t8,201 Bytes\r\n\r\n");
    while (text.Position() + line.size() <= characters) text.Append(line);
    return std::string(text.Text());
}

// In milliseconds, those of the processor beside those of the clock. The first round, which loads the fonts, isn't
// counted.
void Measure(PropertyPane& pane, std::string_view name, const std::string& text)
{
    std::vector<double> times;
    std::clock_t processor = 0;
    pane.ShowPropertyText(text);
    for (int i = 0; i < kRounds; ++i) {
        QElapsedTimer timer;
        timer.start();
        processor -= std::clock();
        pane.ShowPropertyText(text);
        processor += std::clock();
        times.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    std::sort(times.begin(), times.end());
    std::printf("%-8s %6zu bytes  median %6.2f ms  worst %6.2f ms  processor %6.2f ms\n", std::string(name).c_str(),
                text.size(), times[kRounds / 2], times.back(),
                1e3 * static_cast<double>(processor) / CLOCKS_PER_SEC / kRounds);
}

}  // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    PropertyPane pane(Labels(Language::English));
    pane.resize(900, 700);
    pane.show();
    QApplication::processEvents();
    constexpr std::string_view kLine = "AMI: Absolute inline position: 1,440\r\n";
    constexpr std::string_view kMixed = "°^°B~Bold°^°N~ plain °^°R~Unknown (17)°^°S~ °^°H~www.example.org°^°L~\r\n";
    Measure(pane, "usual", TextOf(3'000, kLine));
    Measure(pane, "longest", TextOf(PropertyText::kCapacity, kLine));
    Measure(pane, "one line", TextOf(PropertyText::kCapacity, "a long value without a line end "));
    Measure(pane, "mixed", TextOf(PropertyText::kCapacity, kMixed));
    return 0;
}
