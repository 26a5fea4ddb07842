"""The tables of looks as the product promises them to other programs: name and kind of every field, in order."""


def _colour(prefix):
    return [(f"{prefix}{part}", "integer") for part in ("Red", "Green", "Blue")]


def _font(prefix):
    return [(f"{prefix}FontName", "text"), (f"{prefix}FontSize", "real"), (f"{prefix}FontStyle", "integer"),
            (f"{prefix}FontEffect", "integer"), *_colour(f"{prefix}FontColor")]


def _rect(prefix):
    return [(f"{prefix}{corner}", "real") for corner in ("MinX", "MinY", "MaxX", "MaxY")]


SCHEMA = {
    "Charts": [("ChartId", "text"), ("ConfigId", "text")],
    "ChartConfigurations": [
        ("ConfigId", "text"), ("ChartMaximized", "boolean"), ("ChartHeight", "real"), ("ChartWidth", "real"),
        ("ControlBar", "boolean"), ("Lines", "integer"), ("Markers", "integer"), ("Stacked", "integer"),
        ("FullStacked", "integer"), ("chartType", "long"), ("Legend", "boolean"), *_colour("BackColor"),
        ("Projection", "long"), ("Flipped", "boolean"), ("PieLabelPos", "long"), ("PlotAutoLayout", "boolean"),
        *_rect("Plot"), ("Rotation", "real"), ("Elevation", "real"), ("TitleText", "text"), ("TitleLocationType", "long"),
        *_rect("Title"), ("TitleOrientation", "long"), ("TitleHorzAlignment", "long"), ("TitleVertAlignment", "long"),
        *_font("Title"), ("LegendLocationType", "long"), *_rect("Legend"), *_font("Legend")],
    "ColumnsConfigurations": [("ConfigId", "text"), ("ColumnId", "integer"), ("ColumnName", "text")],
    "SeriesConfigurations": [
        ("ConfigId", "text"), ("SeriesId", "integer"), ("SeriesType", "long"), ("SeriesStatLine", "integer"),
        ("SeriesStyle", "long"), ("SeriesIndex", "long"), *_colour("SeriesColor"), *_colour("SeriesStyleColor"),
        ("SeriesLabelOrientation", "long"), ("SeriesLabelLocation", "long"), ("SeriesLabelLineStyle", "long"),
        ("SeriesLabelComponents", "integer"), *_font("SeriesLabel")],
    "AxesConfigurations": [
        ("ConfigId", "text"), ("AxisId", "integer"), ("AxisScaleVisible", "boolean"), ("AxisGridStyle", "long"),
        ("AxisTitleText", "text"), ("AxisTitleVisible", "boolean"), ("AxisTitleOrientation", "long"), *_font("AxisTitle"),
        *_font("AxisLabels")],
    "LookExtras": [("ConfigId", "text"), ("Element", "text"), ("Field", "text"), ("Value", "text")],
}
INDEXES = {"Charts_PrimaryKey", "Charts_Config", "ChartConfigurations_PrimaryKey",
           *(f"{table}Configurations_{index}" for table in ("Columns", "Series", "Axes") for index in ("PrimaryKey", "Config")),
           "LookExtras_PrimaryKey", "LookExtras_Config"}
FILE_TYPES = {"text": "TEXT", "boolean": "BOOLEAN", "integer": "SMALLINT", "long": "INTEGER", "real": "REAL"}
SERVER_TYPES = {"text": "text", "boolean": "boolean", "integer": "smallint", "long": "integer", "real": "real"}
