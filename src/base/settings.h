#pragma once

#include <cstdint>

#include "base/labels.h"

namespace folioscope {

// The user's settings under their stored names, with their defaults. Flags are 0 or 1.
struct Settings {
    std::int32_t Codepage = 37;
    std::int32_t CodepageNOP = 37;
    std::int32_t CodepageTLE = 37;
    std::int32_t Language = 1;  // 1 English, 2 German, 3 French
    std::int32_t TechnicalEnglish = 0;
    std::int32_t ShowNOP = 1;
    std::int32_t ShowBESF = 1;
    std::int32_t ShowIISF = 1;
    std::int32_t FolderBold = 1;
    std::int32_t FolderColored = 1;
    std::int32_t FolderColor = 0xFF8080;  // 0xBBGGRR
    std::int32_t DefaultMeasurement = 0;  // 0 inch, 1 cm, 2 mm, 3 points, 4 to 6 pels at 240, 300, 600 an inch
    std::int32_t NormalLineWidth = 1;     // 0: 1/100 inch, 1: 1/120 inch
    std::int32_t CodePageAutoDetect = 1;
    std::int32_t UsePreviewWindow = 1;
    std::int32_t HexViewer = 1;
    std::int32_t MessageWindow = 1;
    std::int32_t UseAutoRotation = 1;

    // The width of a line of width 1, in inches.
    float LineWidth() const { return static_cast<float>(NormalLineWidth != 0 ? 1.0 / 120 : 1.0 / 100); }

    folioscope::Language InterfaceLanguage() const { return LanguageOf(Language); }
    folioscope::Language AnalysisLanguage() const { return LanguageOf(TechnicalEnglish == 1 ? 1 : Language); }

private:
    static folioscope::Language LanguageOf(std::int32_t number)
    {
        return number == 2   ? folioscope::Language::German
               : number == 3 ? folioscope::Language::French
                             : folioscope::Language::English;
    }
};

}  // namespace folioscope
