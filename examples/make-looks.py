#!/usr/bin/env python3
"""Makes the ten looks in looks/, and seattle-weather.json: what they share is said once, what each adds stands in its function."""
import copy
import json
import pathlib

SERIES = 16  # a larger chart goes on with the component's own colours
X, Y, SECOND, Z = range(4)
LEFT, TOP_LEFT, TOP_RIGHT, BOTTOM, RIGHT = 0, 0, 2, 6, 4
NONE, SOLID, DASHED, DOTTED, LONG_DASHED, DASH_DOTTED = range(6)
BOLD = 1
PLAIN_FILL, HATCH = 1, 3
LINES, COMBINATION = 3, 9
BAR_SERIES, LINE_SERIES = 1, 6

# Ten hues each that stay apart for people who see red, green or blue less, and six to go on with.
CALM = ("#4670a8", "#d39a36", "#8e3a1a", "#6cc9de", "#9e85dd", "#624a72", "#249c99", "#9a6066", "#a3bd90", "#c8703f",
        "#2f4257", "#8b8f95", "#b8894a", "#5a8f6b", "#7f9cc9", "#b5567c")
BRIGHT = ("#1238c8", "#d9a900", "#9c1c0c", "#2fb0fa", "#a74b94", "#008c1a", "#9250fb", "#5d2a7c", "#ef7eb3", "#f24360",
          "#0b1f4d", "#7c7f86", "#b35a00", "#00806e", "#5f8cff", "#8f0057")
LIGHT = ("#85a4cd", "#f4da70", "#c9783a", "#6fe3ee", "#bd9b71", "#5d83d4", "#abdab6", "#6fcced", "#f1af57", "#a682a4",
         "#d7dbe0", "#8b929c", "#e58f8f", "#7fc49a", "#b9a8e8", "#d8c3a0")
# Greys dark enough for lines; surfaces of the same grey are told apart by a hatch in white.
GREYS = ("#1a1a1a", "#8c8c8c", "#4d4d4d", "#6e6e6e", "#2b2b2b", "#9c9c9c", "#5c5c5c", "#3a3a3a", "#7d7d7d", "#222222",
         "#949494", "#555555", "#333333", "#858585", "#666666", "#444444")
HATCHES = (None, None, 2, 5, 1, 0, None, 3, 4, 2, 5, 1, 0, 3, 4, 5)


def colour(prefix, text):
    return {prefix + part: int(text[at:at + 2], 16) for part, at in (("Red", 1), ("Green", 3), ("Blue", 5))}


def font(prefix, size, ink, style=0):
    return {prefix + "FontName": "Arial", prefix + "FontSize": size, prefix + "FontStyle": style, prefix + "FontEffect": 0,
            **colour(prefix + "FontColor", ink)}


class Look:
    def __init__(self, name, palette=CALM, ground="#ffffff", ink="#2f3640", quiet="#5b6470", grid="#e3e6ea", line="#9aa2ad",
                 title=14, text=9, width=2, marker=5, legend=TOP_RIGHT, gap=60):
        self.colours = palette
        self.quiet = quiet
        self.text = text
        self.whole = {"ConfigId": name, "TitleLocationType": TOP_LEFT, "TitleHorzAlignment": LEFT, "LegendLocationType": legend,
                      **colour("BackColor", ground), **font("Title", title, ink, BOLD), **font("Legend", text, quiet)}
        self.axes = [{"AxisId": axis, "AxisGridStyle": SOLID if axis == Y else NONE, **font("AxisTitle", text, quiet),
                      **font("AxisLabels", text, quiet)} for axis in (X, Y, SECOND, Z)]
        self.series = [{"SeriesId": number, "SeriesStyle": PLAIN_FILL, "SeriesIndex": 0, **colour("SeriesColor", hue),
                        **font("SeriesLabel", text, ink)} for number, hue in enumerate(palette, 1)]
        self.beyond = {}
        self.say("Chart", DirectNames=True, LegendFollowsData=True, FrameStyle=0, XGap=gap)
        self.say("Axis", LineColor=line, GridColor=grid, GridWidth=0.75)
        self.say("Axis 1", LineStyle=NONE)
        self.say("Axis 2", LineStyle=NONE)
        self.say("Series", LineStyle=SOLID, LineWidth=width, MarkerSize=marker)

    def say(self, element, **fields):
        self.beyond.update({(element, field): value for field, value in fields.items()})
        return self

    def set(self, **fields):
        self.whole.update(fields)
        return self

    def set_axis(self, axis, **fields):
        self.axes[axis].update(fields)
        return self

    def set_series(self, **fields):
        for one in self.series:
            one.update(fields)
        return self

    def json(self):
        def order(key):
            name, _, number = key[0].partition(" ")
            return ("Chart", "Axis", "Series").index(name), int(number or -1), key[1]
        beyond = [{"Element": key[0], "Field": key[1], "Value": self.beyond[key]} for key in sorted(self.beyond, key=order)]
        look = {**copy.deepcopy(self.whole), "Axes": self.axes, "Series": self.series, "Beyond": beyond}
        return json.dumps(look, indent=4, sort_keys=True, ensure_ascii=False) + "\n"


def calm():
    return Look("Calm")


def bold():
    look = Look("Bold", BRIGHT, ink="#101418", quiet="#2b323b", grid="#d5dae0", line="#101418", title=20, text=10, width=3.5, marker=9,
                gap=35)
    return look.say("Axis", GridWidth=1, LineWidth=1.5)


def print_():
    look = Look("Print", GREYS, ink="#000000", quiet="#000000", grid="#bdbdbd", line="#000000", width=1.5, legend=BOTTOM)
    dashes = (SOLID, DASHED, DOTTED, LONG_DASHED, DASH_DOTTED)
    for one, hatch in zip(look.series, HATCHES):
        if hatch is not None:
            one.update({"SeriesStyle": HATCH, "SeriesIndex": hatch, **colour("SeriesStyleColor", "#ffffff")})
    look.say("Series", EdgeStyle=SOLID, EdgeColor="#000000", EdgeWidth=0.5)
    for number in range(1, SERIES + 1):
        look.say(f"Series {number}", LineStyle=dashes[(number - 1) % len(dashes)])
    return look


def dark():
    return Look("Dark", LIGHT, ground="#1e2227", ink="#f0f2f4", quiet="#b4bcc6", grid="#353b43", line="#5d6670")


def slides():
    look = Look("Slides", ink="#1f2630", quiet="#3d4651", title=28, text=16, width=4, marker=11, legend=BOTTOM, gap=45)
    return look.say("Axis", GridWidth=1, LineWidth=1.5)


def paper():
    look = Look("Paper", ink="#000000", quiet="#1a1a1a", grid="#e0e0e0", line="#1a1a1a", title=9, text=7, width=1, marker=4,
                legend=BOTTOM, gap=50)
    look.set(ChartWidth=5520, ChartHeight=5700)
    return look.say("Axis", GridWidth=0.5, LineWidth=0.5).say("Axis 1", LineStyle=SOLID)


def dense():
    look = Look("Dense", title=12, text=8, width=1, marker=3, gap=15).set(chartType=LINES)
    return look.say("Axis", GridWidth=0.5)


def labels():
    look = Look("Labels", text=8.5, legend=BOTTOM, gap=30).set_series(SeriesLabelComponents=1, SeriesLabelLocation=6)
    look.set_axis(Y, AxisGridStyle=NONE, AxisScaleVisible=False)
    return look


def two_axes():
    look = Look("Two axes").set(chartType=LINES).set_axis(SECOND, AxisScaleVisible=True)
    for axis, hue in ((Y, look.colours[0]), (SECOND, look.colours[2])):
        look.set_axis(axis, **colour("AxisTitleFontColor", hue), **colour("AxisLabelsFontColor", hue))
    look.series[1].update(colour("SeriesColor", look.colours[2]))
    look.series[2].update(colour("SeriesColor", look.colours[1]))
    return look.say("Series 2", SecondaryAxis=True)


def logarithmic():
    look = Look("Logarithmic").set(chartType=LINES)
    return look.say("Axis 1", Logarithmic=True).say("Axis 2", Logarithmic=True)


def seattle_weather():
    """For the one table: two temperatures as lines, precipitation as bars that leave them the upper half."""
    look = Look("Seattle weather").set(chartType=COMBINATION, LegendLocationType=BOTTOM)
    look.set_axis(Y, AxisTitleText="Mean temperature (\u00b0C)")
    look.set_axis(SECOND, AxisTitleText="Precipitation (mm)", AxisScaleVisible=True)
    for one, kind, hue in zip(look.series, (LINE_SERIES, LINE_SERIES, BAR_SERIES), ("#c8703f", "#4670a8", "#c3cdd9")):
        one.update(SeriesType=kind, **colour("SeriesColor", hue))
    look.series = look.series[:3]
    look.say("Axis 2", AutoScale=False, Minimum=0, Maximum=600, MajorDivision=6)
    return look.say("Series 3", SecondaryAxis=True)


def main():
    here = pathlib.Path(__file__).parent
    (here / "seattle-weather.json").write_text(seattle_weather().json(), encoding="utf-8")
    folder = here / "looks"
    for make in (calm, bold, print_, dark, slides, paper, dense, labels, two_axes, logarithmic):
        name = make.__name__.strip("_").replace("_", "-")
        (folder / f"{name}.json").write_text(make().json(), encoding="utf-8")


if __name__ == "__main__":
    main()
