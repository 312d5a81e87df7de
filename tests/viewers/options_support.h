#pragma once

#include <QApplication>
#include <QPushButton>
#include <QTimer>

#include <functional>
#include <memory>

#include "base/settings_store.h"
#include "support/temporary_file.h"
#include "viewers/frmOptions.h"
#include "viewers/qt_text.h"

namespace folioscope::test {

// A user's folders of their own, and the options over them.
class OptionsDesk {
public:
    OptionsDesk()
    {
        qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(folder_.Path()));
        qputenv("XDG_DATA_HOME", QByteArray::fromStdString(folder_.Path()));
        store = clsSillyFunctions();
        Start();
    }

    // As the program does it at its start.
    void Start()
    {
        dialog.reset();
        settings = ReadSettings(store);
        dialog = std::make_unique<frmOptions>(store, settings, Folder());
    }

    QString Folder() const { return ToQt(folder_.Path()); }

    template <class Control> Control& Find(const char* name) const
    {
        auto* const control = dialog->findChild<Control*>(QLatin1String(name));
        if (control == nullptr) qFatal("the dialog has no %s", name);
        return *control;
    }
    void Click(const char* name) const { Find<QAbstractButton>(name).click(); }

    clsSillyFunctions store;
    Settings settings;
    std::unique_ptr<frmOptions> dialog;

private:
    TemporaryFolder folder_;
};

// Lets something act on the next modal dialog of a kind, once.
template <class Dialog> class Answer {
public:
    explicit Answer(std::function<void(Dialog&)> act)
    {
        timer_.callOnTimeout([this, act] {
            auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr) return;
            timer_.stop();
            answered = true;
            act(*dialog);
        });
        timer_.start(5);
    }
    bool answered = false;

private:
    QTimer timer_;
};

}  // namespace folioscope::test
