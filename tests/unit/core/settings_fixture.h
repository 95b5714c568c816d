#pragma once

#include "core/paths.h"
#include "core/settings_store.h"
#include "forms/forms.h"
#include "tests/unit/fakes.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>

namespace unit {

/// A settings store on a program folder that holds the program's own sound and nothing else.
class SettingsTest : public testing::Test {
protected:
    SettingsTest() { files.contents[sound] = "a chime"; }

    /// One line of the file.
    static std::string line(std::string_view key, std::string_view value)
    {
        std::string text = "[" + std::string(key) + std::string(20 - key.size(), ' ') + "]=";
        return text.append(value).append("\r\n");
    }

    void file_holds(std::string content) { files.contents[path] = std::move(content); }
    [[nodiscard]] std::string file() const { return files.read(path); }

    /// The program loads this file.
    void load(std::string content)
    {
        file_holds(std::move(content));
        store.load();
    }

    /// Start-up is over: the splash bar has come to its mark.
    void start_up_is_over() { forms.loading.ProgressBar1.set(15); }

    static constexpr auto path = "app/settings.txt";
    static constexpr auto sound = "app/vexlo.wav";

    MemoryFiles files;
    forms::Forms forms{western};
    forms::FrmMain& frmMain = forms.frmMain;
    forms::Settings& settings = forms.settings;
    controls::Menu& answers = forms.menuform.autores;
    core::Paths const paths{"app"};
    core::SettingsStore store{forms, files, paths};
};

} // namespace unit
