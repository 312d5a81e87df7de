#pragma once

#include <QFrame>

#include <cstdint>

#include "base/labels.h"
#include "viewers/preview_engine.h"

namespace folioscope {

// The pages of a document beside its tree.
class PreviewPane final : public QFrame {
    Q_OBJECT

public:
    explicit PreviewPane(QWidget* parent);

    void SetTexts(const Labels& texts);
};

}  // namespace folioscope
