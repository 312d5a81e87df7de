#pragma once

#include <QElapsedTimer>
#include <QFrame>
#include <QWidget>

#include <memory>

#include "document/document.h"
#include "document/run_host.h"
#include "shell/shell_state.h"

class QLabel;
class QProgressBar;
class QPushButton;

namespace folioscope {

class Divider;
class FlyTree;
class HexPane;
class PreviewPane;
class PropertyPane;

// One AFP file: its tree, its texts, its bytes and its pages. It forwards to a Document, which has all there is to know
// of the file.
class frmParserWindow final : public QWidget, private RunHost {
    Q_OBJECT

public:
    explicit frmParserWindow(ShellState& state, QWidget* parent = nullptr);
    ~frmParserWindow() override;

    // Walks the file. False: there is nothing to show, and the window should go.
    bool ProcessAFPFile(const QString& path);
    const QString& Path() const { return path_; }

    // A run, a dump, a search or an expansion is under way.
    bool IsBusy() const { return busy_ > 0; }
    // The user wants the window to go: a busy one is stopped, and goes at the next request.
    bool MayClose();

    void SaveDump(const QString& name);
    // The next hit behind the selected node.
    void FindNext();
    void ExpandAll();
    void FullCollapse();
    void cmdCancel_Click();

    // The selected node as a path with ^ between the levels, and back; a path that isn't there selects the root.
    std::string SelectedPath() const;
    void SelectPath(const std::string& path);

    bool HasPreview() const { return previewOffered_; }
    bool PreviewShown() const { return previewShown_; }
    // Shows the pages if they are hidden, and the other way round.
    void ShowPreview();
    PreviewPane& Pages() { return *picViewFrame_; }

    // What the window gets that isn't as large as its area: three quarters of that.
    QSize sizeHint() const override;

    void SetTexts();      // of the language in force
    void TakeSettings();  // what was changed in the options holds from now on

Q_SIGNALS:
    void StateChanged();  // what can be done with the window has changed
    void FilesDropped(const QStringList& paths);
    void LinkNotOpened(const QString& address);

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    // RunHost
    void OperationStarts(std::int64_t lngMaximum) override;
    void Progress(std::int64_t lngValue) override;
    void Counters(std::int32_t lngSFCount, std::int32_t lngPageCount) override;
    void GiveWay() override;
    void KeepAlive() override;
    void OperationEnds() override;
    void RunFinished() override;
    void PreviewOffered() override;
    void MessageBox(BoxIcon icon, std::string_view title, std::string_view text) override;

    QWidget* MakeStatusBar();
    void flyTreeStructure_OnSelChange(std::uint32_t node);
    void ShowNode(std::uint32_t node);
    void SelectNode(std::uint32_t node);
    void SelectPageEnd(std::uint32_t node);
    void TellOfViewer();
    void TellFailure(const FileFailure& failure);
    void PlacePanes();
    void DragTreeDivider(int position);
    void DragPreviewDivider(int position);
    void DragHexDivider(int position);
    void ShowCounters();
    void ShowProgress();

    ShellState& state_;
    QString path_;
    std::unique_ptr<Document> document_;
    Labels analysisTexts_;  // of the last run
    FlyTree* flyTreeStructure_;
    PropertyPane* txtProperties_;
    Divider *imgDivider_, *imgDivider2_, *imgDivider3_;
    PreviewPane* picViewFrame_;
    HexPane* picHex_;
    QWidget* picStatusBar_;
    QProgressBar* pgbProgress_;
    QPushButton* cmdCancel_;
    QLabel *lblPageCount_, *lblSFCount_;

    int busy_ = 0;
    bool previewOffered_ = false, previewShown_ = false;
    bool rootOpened_ = false;  // so that the first rows are seen while the run goes on
    std::int64_t progress_ = 0;
    int progressShift_ = 0;  // a progress bar counts in 31 bits
    std::int32_t lngSFCount_ = 0, lngPageCount_ = 0;
    QElapsedTimer shown_;  // since the panes were last brought up to date in an operation
};

}  // namespace folioscope
