// The program's icon: a signal with its blank and its plateau, painted at the sizes that desktops ask for.
#pragma once

#include <QIcon>

namespace kolvar {

QIcon program_icon();

}  // namespace kolvar
