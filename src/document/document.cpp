#include "document/document.h"

namespace folioscope {

Document::Document(const Settings& settings, NumberStyle numbers, MessageList& messages, RunHost& host,
                   const DecodePorts& ports)
    : settings_(settings), style_(std::move(numbers)), messages_(messages), host_(host)
{
    clsAFP_.SetPorts(ports);
    const Labels analysis = AnalysingTexts(settings_.AnalysisLanguage()), interface(settings_.InterfaceLanguage());
    tree_ =
        std::make_unique<StructureTree>(settings_, analysis, interface, messages_, static_cast<TreeListener&>(*this));
    renderer_ = std::make_unique<Renderer>(analysis, settings_, style_, *tree_);
    renderer_->ports = Renderers();
    renderer_->lines = {settings_.LineWidth(), settings_.LineWidth()};
}

Document::~Document() = default;

void Document::TakeSettings(const Settings& settings)
{
    settings_.Language = settings.Language;
    settings_.DefaultMeasurement = settings.DefaultMeasurement;
    settings_.NormalLineWidth = settings.NormalLineWidth;
    renderer_->lines.NormalLineWidth = settings_.LineWidth();
    memo_ = {};  // its texts are in the units that counted before
}

}  // namespace folioscope
