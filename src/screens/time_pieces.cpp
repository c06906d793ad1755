#include "screens/time_pieces.hpp"

namespace kolvar {

void place(Control& control, int left, int top, int width, int height) {
    control.place(left, top);
    control.width = width;
    control.height = height;
}

void place_upper_scale(TimeScreen& form, int left, int width) {
    const int end = form.pict1.top + form.pict1.height / 10 - label_height / 2;
    place(form.lblMaxCps, left, end, width, label_height);
    place(form.lblMaxCps2, left, end + label_height, width, label_height);
    place(form.lblXNew, left, end + 2 * label_height, 1500, label_height);
    place(form.txtYMaxInp, left, end + 3 * label_height, 1200, 330);
    for (Label* decade :
         {&form.lbl10, &form.lbl100, &form.lbl1000, &form.lbl10k, &form.lbl100k, &form.lbl1m, &form.lbl10m}) {
        decade->width = width;
        decade->height = label_height;
        decade->left = left;
        decade->placed = true;
    }
}

void place_around_plots(TimeScreen& form) {
    place(form.VScroll1, form.pict1.left + form.pict1.width + 15, form.pict1.top, bar_width, form.pict1.height);
    place(form.VScroll3, form.pict2.left + form.pict2.width + 15, form.pict2.top, bar_width, form.pict2.height);
    place(form.lblIIS(2), form.pict2.left + form.pict2.width / 4, form.pict2.top - label_height - 15,
          form.pict2.width / 2, label_height);
    for (Label* limit : {&form.lblLow, &form.lblUpp}) {
        limit->width = 600;
        limit->height = label_height;
    }
    form.pictFormer.height = 75;
}

}  // namespace kolvar
