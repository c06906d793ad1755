// A whole program without a surface, on a fresh copy of the start kit.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>

#include "screens/program.hpp"
#include "support/test_support.hpp"

namespace kolvar::test {

class ProgramOnKit : public ::testing::Test {
protected:
    ProgramOnKit() {
        namespace fs = std::filesystem;
        const fs::path kit = fs::path(KOLVAR_SOURCE_DIR) / "start-kit";
        fs::create_directories(fs::path(folder.path()) / "start-kit");
        for (const auto& file : fs::directory_iterator(kit)) {
            const std::string name = file.path().filename().string();
            const bool beside = name.rfind("start_path", 0) == 0 || name == "grubbs.dat" || name == "student.dat";
            fs::copy_file(file.path(), fs::path(folder.path()) / (beside ? name : "start-kit/" + name));
        }
        program = std::make_unique<Program>(os, folder.path());
    }

    void click(Form& form, const std::string& control, int index = -1) {
        Event event;
        event.window = form.name;
        event.control = control;
        event.index = index;
        program->dispatch(event);
    }
    // A press and release at a slice of pict1: button 1 left, 2 right.
    void mark(int button, int shift, double slice) {
        Event event;
        event.kind = EventKind::press;
        event.window = "frm2_Time";
        event.control = "pict1";
        event.button = button;
        event.shift = shift;
        event.x = forms().frm2_Time.pict1.width * slice / rs().nSlices;
        program->dispatch(event);
        event.kind = EventKind::release;
        program->dispatch(event);
    }
    void choose(Form& form, const std::string& control, const std::string& item) {
        Event event;
        event.kind = EventKind::choose;
        event.window = form.name;
        event.control = control;
        event.text = item;
        program->dispatch(event);
    }
    void type(Form& form, const std::string& control, const std::string& text) {
        Event event;
        event.kind = EventKind::type;
        event.window = form.name;
        event.control = control;
        event.text = text;
        program->dispatch(event);
    }
    // From the start to the time selection with blank 5 to 45 and signal 60 to 120 marked.
    void go_to_marked_selection() {
        program->start(0);
        click(forms().frm1_Settings, "cmdOK");
        click(forms().frm1_Settings, "cmdNext");
        mark(1, 1, 5);
        mark(2, 1, 45);
        mark(1, 0, 60);
        mark(2, 0, 120);
    }
    RunState& rs() { return program->state(); }
    Forms& forms() { return program->forms(); }

    TempFolder folder;
    ScriptedPlatform os;
    std::unique_ptr<Program> program;
};

}  // namespace kolvar::test
