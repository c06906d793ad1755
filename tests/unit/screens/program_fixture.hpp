// A whole program without a surface, on a fresh copy of the start kit.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

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
        // The whole path: a test may run in a folder that holds a start kit of its own.
        for (const char* name : {"start_path", "start_path_KolvAGE"})
            folder.write(name, "\"" + folder.path("start-kit") + "\"\r\n");
        program = std::make_unique<Program>(os, folder.path());
    }

    // Files of the kit, to be changed before the start.
    std::string kit(const std::string& name) const { return folder.path("start-kit/" + name); }
    void write_kit(const std::string& name, const std::string& bytes) const {
        folder.write("start-kit/" + name, bytes);
    }
    void remove_from_kit(const std::string& name) const { std::filesystem::remove(kit(name)); }
    // Gives a key of the kit's settings file another value, written as it stands in the file.
    void set_key(const std::string& key, const std::string& value) const {
        const std::string settings = folder.read("start-kit/Kolvar-default-h.set");
        const std::size_t name = settings.find(",\"" + key + "\"");
        ASSERT_NE(name, std::string::npos) << key;
        const std::size_t before = settings.rfind('\n', name);
        const std::size_t line = before == std::string::npos ? 0 : before + 1;
        write_kit("Kolvar-default-h.set", settings.substr(0, line) + value + settings.substr(name));
    }

    Event event_of(EventKind kind, const Form& form, const std::string& control = {}, int index = -1) const {
        Event event;
        event.kind = kind;
        event.window = form.name;
        event.control = control;
        event.index = index;
        return event;
    }
    void click(Form& form, const std::string& control, int index = -1) {
        program->dispatch(event_of(EventKind::click, form, control, index));
    }
    void close(Form& form) { program->dispatch(event_of(EventKind::close, form)); }
    void enter(Form& form, const std::string& control) { program->dispatch(event_of(EventKind::enter, form, control)); }
    void dblclick(Form& form, const std::string& control = {}) {
        program->dispatch(event_of(EventKind::dblclick, form, control));
    }
    void scroll(Form& form, const std::string& control, int value) {
        Event event = event_of(EventKind::scroll, form, control);
        event.value = value;
        program->dispatch(event);
    }
    void resize(Form& form, double width, double height) {
        Event event = event_of(EventKind::resize, form);
        event.x = width;
        event.y = height;
        program->dispatch(event);
    }
    // A press and release at a slice of pict1: button 1 left, 2 right.
    void mark(int button, int shift, double slice) {
        Event event = event_of(EventKind::press, forms().frm2_Time, "pict1");
        event.button = button;
        event.shift = shift;
        event.x = forms().frm2_Time.pict1.width * slice / rs().nSlices;
        program->dispatch(event);
        event.kind = EventKind::release;
        program->dispatch(event);
    }
    void choose(Form& form, const std::string& control, const std::string& item) {
        Event event = event_of(EventKind::choose, form, control);
        event.text = item;
        program->dispatch(event);
    }
    void type(Form& form, const std::string& control, const std::string& text) {
        Event event = event_of(EventKind::type, form, control);
        event.text = text;
        program->dispatch(event);
    }
    // Forgets the boxes so far, and hands out the texts of those that come up from then on.
    void forget_boxes() { os.boxes.clear(); }
    std::vector<std::string> box_texts() const {
        std::vector<std::string> texts;
        for (const auto& box : os.boxes) texts.push_back(box.text);
        return texts;
    }
    std::vector<std::string> shown_windows() const {
        std::vector<std::string> names;
        for (const Form* form : program->shell().shown()) names.push_back(form->name);
        return names;
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
