#pragma once
// "Customize Colors": the text and background of the four key classes ("Standard:", "Number:",
// "Register:", "Clear:"), each edited through "Color Chooser". The chosen colours lie over the
// current theme until "Default" removes them all. The owner keeps them and repaints.
#include <QDialog>
#include <array>
#include <cstddef>
#include <span>
#include <vector>

#include "app/dialogs/dialog_support.h"
#include "session/screen_colours.h"

class QLabel;
class QPushButton;
class QSlider;

namespace brinto::dialogs {

// The custom colours as the store keeps them: for each key class its text then its background,
// each a byte 1 when set (0 when not) and red, green, blue. Anything not of that size reads as
// no custom colours at all.
inline constexpr const char* kCustomColoursSetting = "custom-colours";
std::vector<std::byte> PackColours(const CustomColours& colours);
CustomColours UnpackColours(std::span<const std::byte> bytes);

// "Color Chooser": three sliders over a sample whose left half is the colour given and whose
// right half the colour as set. "Reset" returns to the colour given.
class ColourChooser : public QDialog {
public:
    ColourChooser(Rgb given, const HelpFunction& help, QWidget* parent);
    Rgb Chosen() const;
    QSlider* slider(int i) const { return m_sliders[static_cast<std::size_t>(i)]; }
    QLabel* number(int i) const { return m_numbers[static_cast<std::size_t>(i)]; }

private:
    void SlidersMoved();
    void Reset();

    Rgb m_given;
    Rgb m_shown;
    std::array<QSlider*, 3> m_sliders{};
    std::array<QLabel*, 3> m_numbers{};
    QWidget* m_sample;
};

class CustomizeColours : public QDialog {
public:
    // `theme` gives the colours of the theme in force, shown where no custom colour is set.
    CustomizeColours(const HelpFunction& help, QWidget* parent);
    void Load(const ScreenColours& theme, const CustomColours& custom);
    const CustomColours& Edited() const { return m_custom; }
    // The grid's buttons: the "Text" column for key class k at 2k, "Background" at 2k + 1.
    QPushButton* button(int i) const { return m_buttons[static_cast<std::size_t>(i)]; }
    // Opens "Color Chooser" for button i; its OK sets the colour. Returned for tests.
    ColourChooser* Choose(int i);

private:
    Rgb Shown(int i) const;
    void Paint();

    HelpFunction m_help;
    ScreenColours m_theme{};
    CustomColours m_custom;
    std::array<QPushButton*, 2 * kKeyClasses> m_buttons{};
};

}  // namespace brinto::dialogs
