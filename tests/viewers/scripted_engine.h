#pragma once

#include <QPainter>
#include <QStringList>

#include <stdexcept>
#include <vector>

#include "viewers/preview_engine.h"

namespace folioscope::test {

enum class Fault { None, Refuses, Throws };

// What a scripted engine does and has been asked. It outlives the engine's documents.
struct Script {
    int pages = 3;
    bool knowsAll = true;
    std::vector<QSizeF> sizes = {QSizeF(612, 792)};  // the last one holds for all pages behind
    Fault opening = Fault::None;
    bool drawingThrows = false, askingThrows = false;

    QStringList calls;
    std::vector<QTransform> transforms;  // of each drawing
    std::vector<double> dots;            // of its device, a unit
    VEViewListener* listener = nullptr;
    int documents = 0;  // that are alive
};

class ScriptedDocument final : public ViewDocument {
public:
    explicit ScriptedDocument(Script& script) : script_(script) { ++script_.documents; }
    ~ScriptedDocument() override { --script_.documents; }

    int PageCount() const override
    {
        if (script_.askingThrows) throw std::runtime_error("asked");
        return script_.pages;
    }
    bool KnowsAllPages() const override { return script_.knowsAll; }
    void FindAllPages() override
    {
        script_.calls += "find all";
        script_.knowsAll = true;
    }
    QSizeF PageSize(int page) const override
    {
        return script_.sizes.at(std::min(static_cast<std::size_t>(page), script_.sizes.size()) - 1);
    }
    void DrawPage(int page, QPainter& painter, double scale, int rotation) override
    {
        if (script_.drawingThrows) throw std::runtime_error("drawn");
        script_.calls += QStringLiteral("draw %1 scale %2 rotation %3").arg(page).arg(scale).arg(rotation);
        script_.transforms.push_back(painter.transform());
        script_.dots.push_back(painter.device()->devicePixelRatioF());
        painter.fillRect(QRectF(0, 0, 10, 10), Qt::red);
    }
    void StartPage(int page, QPainter&) override { script_.calls += QStringLiteral("start %1").arg(page); }
    void EndPage(int page, QPainter&) override { script_.calls += QStringLiteral("end %1").arg(page); }

private:
    Script& script_;
};

class ScriptedEngine final : public PreviewEngine {
public:
    explicit ScriptedEngine(Script& script) : script_(script) {}

    std::unique_ptr<ViewDocument> OpenDocument(const QString& path, bool autoRotation,
                                               VEViewListener& listener) override
    {
        script_.calls += QStringLiteral("open %1 %2").arg(path).arg(autoRotation);
        script_.listener = &listener;
        if (script_.opening == Fault::Throws) throw std::runtime_error("opened");
        if (script_.opening == Fault::Refuses) return nullptr;
        return std::make_unique<ScriptedDocument>(script_);
    }
    void BeginJob(QPaintDevice&, const QString& program) override { script_.calls += "begin " + program; }
    void ReleaseDevice(QPaintDevice&) override { script_.calls += "release"; }

private:
    Script& script_;
};

struct LoggedMessage {
    QString origin;
    int number, severity;
    QString message;
};

class MessageLog final : public IVEDisplayMachineCallback {
public:
    void IVEDisplayMachineCallback_LogMessage(const QString& origin, int number, int severity,
                                              const QString& message) override
    {
        messages.push_back({origin, number, severity, message});
    }
    std::vector<LoggedMessage> messages;
};

}  // namespace folioscope::test
