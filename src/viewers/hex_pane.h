#pragma once

#include <QFrame>

#include <cstdint>

#include "base/labels.h"

namespace folioscope {

// The bytes of a record as they lie in the file, with a few in front and behind: positions, values, and the same bytes
// as text in a code page that the user picks. It shows and changes nothing.
class HexPane final : public QFrame {
    Q_OBJECT

public:
    // `codepage` is the one in force at first.
    HexPane(std::int32_t codepage, const Labels& texts, QWidget* parent);

    void SetTexts(const Labels& texts);
    void SetFile(const QString& path);
    // lngStart: position of the record's length field in the file, from 1; 0: the node has none, and the pane is
    // disabled with the text that it has.
    void ShowRecord(std::int32_t lngStart, std::int32_t lngLength);
    // The document window's, in pixels: it decides how many bytes stand on a line.
    void SetWindowWidth(int pixels);
};

}  // namespace folioscope
