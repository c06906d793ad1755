// The boxes of a start that does not find its files.
#pragma once

#include <string>

namespace kolvar::test {

inline std::string table_text(const std::string& name) {
    return "Error occurred while trying to load file: '" + name +
           "'\nThis statistical table must be in the directory where the EXE file is placed.";
}

inline std::string start_path_text(const std::string& name) {
    return "Error occurred while trying to load file: '" + name +
           "' \nThis file contains the path to the necessary start kit of Kolvar and must be in the work directory of "
           "the EXE program.";
}

inline std::string settings_text(const std::string& path) {
    return "Error occurred while trying to load file: " + path +
           "\n\nSpecify the path using the menu of 'File Selection' window: [Settings] / [Specify the path to the "
           "StartKit directory].";
}

}  // namespace kolvar::test
