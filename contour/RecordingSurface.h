// RecordingSurface: keeps everything that is drawn, for tests and for the command line's JSON.
#pragma once

#include <vector>

#include "contour/Surface.h"

namespace lithmark {

class RecordingSurface : public Surface {
  public:
    struct DrawnLine {
        double X1, Y1, X2, Y2;
        int Color;
    };
    struct DrawnText {
        double X, Y;
        std::string Text;
    };
    struct DrawnBox {
        double X1, Y1, X2, Y2;
        int Color;
    };

    struct WorldScale {
        double Left, Top, Right, Bottom;
    };

    // width by height pixels, none filled.
    RecordingSurface(int width, int height) : extent_{0, 0, width, height} { Clear(); }

    std::vector<DrawnLine> Lines;
    std::vector<DrawnText> Texts;
    std::vector<DrawnBox> Boxes;
    long PixelsOutside = 0;        // pixels set beyond the surface
    WorldScale Scale{0, 0, 0, 0};  // the world scale set last

    // The colour of a pixel, -1 where nothing was filled.
    int ColorAt(int x, int y) const { return pixels_[Index(x, y)]; }

    PixelExtent Pixels() const override { return extent_; }
    void Clear() override {
        Lines.clear();
        Texts.clear();
        Boxes.clear();
        pixels_.assign(static_cast<std::size_t>(extent_.Width) * static_cast<std::size_t>(extent_.Height), -1);
    }
    void SetPixelScale() override {}
    void SetWorldScale(double left, double top, double right, double bottom) override {
        Scale = {left, top, right, bottom};
    }
    void Pixel(int x, int y, int color) override {
        if (x < 0 || y < 0 || x >= extent_.Width || y >= extent_.Height)
            ++PixelsOutside;
        else
            pixels_[Index(x, y)] = static_cast<signed char>(color);
    }
    void Line(double x1, double y1, double x2, double y2, int color) override {
        Lines.push_back({x1, y1, x2, y2, color});
    }
    void Print(double x, double y, const std::string& text) override { Texts.push_back({x, y, text}); }
    void FilledBox(double x1, double y1, double x2, double y2, int color) override {
        Boxes.push_back({x1, y1, x2, y2, color});
    }

  private:
    std::size_t Index(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(extent_.Width) + static_cast<std::size_t>(x);
    }

    PixelExtent extent_;
    std::vector<signed char> pixels_;
};

}  // namespace lithmark
