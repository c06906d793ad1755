#include "screens/help_window.hpp"

#include <array>
#include <cmath>

#include "core/files.hpp"
#include "screens/screens.hpp"

namespace kolvar {

namespace {

constexpr const char* version_text = "Version " KOLVAR_VERSION;
constexpr const char* citation =
    "KOLVAR, version " KOLVAR_VERSION ": reduction of time-resolved LA-ICP-MS data. " KOLVAR_HOMEPAGE;

void say_missing(Platform& os, const std::string& path) {
    os.warn("The help document was not found:\n" + path, "KOLVAR");
}

// A window that is open already changes its face.
void show(Context& context, FrmHelp1::Face face, int width, int height) {
    FrmHelp1& form = context.forms.frmHelp1;
    form.show_face(face);
    form.width = width;
    form.height = height;
    form.set_focus(form.cmdClose);
    context.shell.open(form);
}

void show_read_me(Context& context) {
    const std::string path = join_path(context.rs.AppPath1, "kol-read-me.riz");
    guarded(
        [&] {
            context.forms.frmHelp1.txt1.text = to_text(read_bytes(path));
            show(context, FrmHelp1::Face::text, 11400, 9000);
        },
        [&](const Fault&) { say_missing(context.os, path); });
}

void show_about(Context& context) {
    FrmHelp1& form = context.forms.frmHelp1;
    form.lblVersion.text = context.forms.frm1_Settings.lblVersion.text;
    form.lblCitation.text = citation;
    show(context, FrmHelp1::Face::about, 9600, 4200);
}

void visit_homepage(Platform& os) {
    const std::string address = KOLVAR_HOMEPAGE;
    if (!os.open_document(address)) os.warn("The page could not be opened:\n" + address, "KOLVAR");
}

// Where the four limits of the sketch stand, in parts of its width, as they are numbered: blank, then signal.
constexpr std::array<double, 4> sketched_limits{0.07, 0.30, 0.47, 0.88};
constexpr double beam_on = 0.38, beam_off = 0.94;
constexpr int strip_height = 330;  // twips below the plot, for the numbers of the limits

// Height of a signal at a place of the time axis: gas blank, steep rise, slow decay, washout. The small teeth are those
// of a counter, the same at every drawing.
double sketched_signal(double place, int step, double blank, double peak) {
    const double tooth = ((step * step * 31 + step * 17) % 29 - 14) / 14.0;
    if (place < beam_on) return blank + 0.012 * tooth;
    if (place < beam_on + 0.03) return blank + (peak - blank) * (place - beam_on) / 0.03;
    const double plateau = peak - 0.20 * (place - beam_on);
    if (place < beam_off) return plateau + 0.016 * tooth;
    return blank + (plateau - blank) * std::exp(-60 * (place - beam_off)) + 0.012 * tooth;
}

// In the colours of the time selection: what is selected stands on white, the blank on its tint.
void draw_cut_time(FrmHelp1& form) {
    Picture& picture = form.pictCutTime;
    Canvas& canvas = picture.canvas;
    const double width = picture.width, height = picture.height - strip_height;
    const auto at = [&](int limit) { return width * sketched_limits[static_cast<std::size_t>(limit - 1)]; };
    canvas.Clear();
    canvas.FillRect(0, 0, width, height, palette(15));
    canvas.FillRect(0, 0, at(3), height, pale_yellow);
    canvas.FillRect(at(4), 0, width, height, pale_yellow);
    canvas.FillRect(at(1), 0, at(2), height, pale_cyan);
    for (const int limit : {1, 2, 3, 4}) {
        canvas.Line(at(limit), 0, at(limit), height, palette(limit < 3 ? 3 : 6));
        Label& mark = form.lblMark(limit);
        mark.text = std::to_string(limit);
        mark.move_to(at(limit) - 60, height + 45);
    }
    struct Curve {
        double blank, peak;
        Colour colour;
    };
    constexpr int steps = 160;
    for (const Curve& curve : {Curve{0.10, 0.78, palette(0)}, Curve{0.05, 0.52, palette(12)}}) {
        const auto level = [&](int step) {
            return height * (1 - sketched_signal(static_cast<double>(step) / steps, step, curve.blank, curve.peak));
        };
        for (int step = 1; step <= steps; ++step)
            canvas.Line(width * (step - 1) / steps, level(step - 1), width * step / steps, level(step), curve.colour);
    }
    const double right = width - 15;
    canvas.Line(0, height, right, height, palette(8));
    canvas.Line(0, 0, right, 0, palette(8));
    canvas.Line(0, 0, 0, height, palette(8));
    canvas.Line(right, 0, right, height, palette(8));
    form.lblBlankHere.move_to(at(1) + 90, 60);
    form.lblSignalHere.move_to(at(3) + 90, 60);
}

void show_cut_time(Context& context) {
    FrmHelp1& form = context.forms.frmHelp1;
    const std::array<const char*, 8> texts{
        "SHIFT + left click:  lower limit of the blank",
        "SHIFT + right click:  upper limit of the blank",
        "Left click:  lower limit of the signal",
        "Right click:  upper limit of the signal",
        "Both limits belong to their interval: 60 to 120 are 61 time slices. The limits alone decide what counts; the "
        "start of the laser beam needs no mark.",
        "The blank is marked here only if it is to be extracted from the Data File; a blank from a Blank File has no "
        "limits.",
        "Limits can be moved as often as you like. A click that would put a lower limit above its upper limit, or the "
        "reverse, is ignored.",
        "Every click brings the plots back to their full height. At least one isotope must be plotted. A double click "
        "beside the plots shows the average concentrations of what is marked."};
    for (int text = 1; text <= 8; ++text) form.lblCutText(text).text = texts[static_cast<std::size_t>(text - 1)];
    for (int number = 1; number <= 4; ++number) form.lblCutNumber(number).text = std::to_string(number);
    draw_cut_time(form);
    show(context, FrmHelp1::Face::cut_time, 10200, 8700);
}

void choose_help(Context& context, int entry) {
    switch (entry) {
        case 1:
            return show_read_me(context);
        case 2:
            return open_help(context, "kol-steps.pdf");
        case 3:
            return open_help(context, "Intro-to-Kolvar-H.pdf");
        case 4:
            return open_help(context, "kol-files.pdf");
        case 5:
            return open_help(context, "Example-files-for-Kolvar.pdf");
        case 6:
            return open_help(context, "kol-equ-01.pdf");
        case 7:
            return open_help(context, "kol-out.pdf");
        case 9:
            return visit_homepage(context.os);
        default:
            return show_about(context);
    }
}

}  // namespace

void open_help(Context& context, const std::string& document) {
    const std::string path = join_path(context.rs.AppPath1, document);
    if (!context.os.open_document(path)) say_missing(context.os, path);
}

void connect_help(Program& program) {
    Context& context = program.context();
    FrmHelp1& form = context.forms.frmHelp1;
    context.forms.frm1_Settings.lblVersion.text = version_text;

    program.on(context.forms.frm1_Settings, "hlp1", EventKind::click,
               [&context](const Event& event) { choose_help(context, event.index); });
    program.on(context.forms.frm2_Time, "hlp2", EventKind::click, [&context](const Event&) { show_cut_time(context); });
    program.on(form, "cmdCopy", EventKind::click,
               [&context](const Event&) { context.os.set_clipboard(context.forms.frmHelp1.lblCitation.text); });
    program.on(form, "cmdClose", EventKind::click,
               [&context](const Event&) { context.shell.close(context.forms.frmHelp1); });
}

}  // namespace kolvar
