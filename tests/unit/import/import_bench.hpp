// A program without windows that loads tables from a temporary folder.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "import/data_file.hpp"
#include "support/test_support.hpp"

namespace kolvar::test {

class ImportTest : public ::testing::Test {
protected:
    ImportTest() {
        set_start_values(rs);
        rs.setCPS_IS = 1;
        profile(1, 2, 1);
    }

    // Of all three readers.
    void profile(const Value& head, const Value& data, const Value& first) {
        rs.setCSVisoLINE = rs.setTXTisoLINE = rs.setXLisoLINE = head;
        rs.setCSVdatLINE = rs.setTXTdatLINE = rs.setXLdatLINE = data;
        rs.setCSVfirstCOL = rs.setTXTfirstCOL = rs.setXLfirstCOL = first;
    }

    // As a user's choice of a file does.
    void load_path(const std::string& path) {
        os.opens.push_back(path);
        ASSERT_TRUE(ChooseDataFile(context));
    }
    void load(const std::string& name, const std::string& bytes) { load_path(folder.write(name, bytes)); }

    // A measurement left from before, of the given size, all cells 7.
    void former_measurement(int columns, int slices) {
        rs.nIso = columns;
        rs.nSlices = slices;
        for (int i = 1; i <= columns; ++i) {
            rs.IsoName(i) = "Old" + std::to_string(i);
            for (int j = 1; j <= slices; ++j) rs.Sig(i, j) = 7;
        }
    }

    [[nodiscard]] std::vector<std::string> heads() const {
        std::vector<std::string> out;
        for (int i = 1; i <= rs.nIso; ++i) out.push_back(rs.IsoName(i));
        return out;
    }
    // The cells of a slice, as many as there are columns.
    [[nodiscard]] std::vector<double> slice(int j) const {
        std::vector<double> out;
        for (int i = 1; i <= rs.nIso; ++i) out.push_back(rs.Sig(i, j));
        return out;
    }
    [[nodiscard]] static std::string load_message(const std::string& path) {
        return "Error occurred while trying to load file: " + path + " , please retry or check the file.";
    }
    void expect_load_message(const std::string& path) {
        ASSERT_EQ(os.boxes.size(), 1U);
        EXPECT_EQ(os.boxes[0].text, load_message(path));
        EXPECT_EQ(os.boxes[0].title, "KOLVAR");
        EXPECT_EQ(os.boxes[0].kind, "warning");
    }

    TempFolder folder;
    RunState rs;
    Forms forms;
    ScriptedPlatform os;
    Shell shell;
    Context context{rs, forms, os, shell};
};

using Heads = std::vector<std::string>;
using Cells = std::vector<double>;

}  // namespace kolvar::test
