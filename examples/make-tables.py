#!/usr/bin/env python3
"""Makes the example tables from an unpacked copy of the npm package vega-datasets: make-tables.py FOLDER

Every table has column labels in its first row, row labels in its first column and numbers in its cells; a missing
number is an empty cell. Run twice on the same data set folder it writes the same bytes.
"""
import csv
import json
import sys
from collections import defaultdict
from decimal import ROUND_HALF_EVEN, Decimal
from pathlib import Path

HERE = Path(__file__).resolve().parent

# The terms under which a data set may be passed on, as the package's catalogue words them.
OPEN_TERMS = {
    "CC0 1.0 Universal",
    "Creative Commons Attribution 4.0",
    "Creative Commons Attribution 4.0 International",
    "Public Domain",
    "U.S. Government Dataset",
}


class Datasets:
    """The package's data sets, numbers kept as they are written; one that names no open terms is refused."""

    def __init__(self, folder):
        self.folder = Path(folder)
        catalogue = json.loads((self.folder / "datapackage.json").read_text(encoding="utf-8"))
        self.terms = {
            resource["path"]: {entry.get("title") or entry.get("name") for entry in resource.get("licenses", [])}
            for resource in catalogue["resources"]
        }

    def read(self, name):
        """The data set as a list of rows, each a dictionary by column name."""
        terms = self.terms.get(name, set())
        if not terms or not terms <= OPEN_TERMS:
            raise SystemExit(f"{name}: open terms expected in datapackage.json, found {terms or 'none'}")
        text = (self.folder / "data" / name).read_text(encoding="utf-8")
        if name.endswith(".json"):
            return json.loads(text, parse_float=Decimal)
        return list(csv.DictReader(text.splitlines()))


def write(name, corner, columns, rows, delimiter=","):
    """Writes one table. Rows are (label, cells); None is a missing cell."""
    with open(HERE / name, "w", encoding="utf-8", newline="") as file:
        writer = csv.writer(file, delimiter=delimiter, lineterminator="\n")
        writer.writerow([corner, *columns])
        for label, cells in rows:
            if len(cells) != len(columns):
                raise SystemExit(f"{name}: {len(columns)} cells expected in row {label}, found {len(cells)}")
            writer.writerow([label, *("" if cell is None else cell for cell in cells)])


def pivot(records, row, column, value):
    """The row labels and column labels in order of first appearance, and the cells by (row, column)."""
    cells = {}
    for record in records:
        key = (row(record), column(record))
        if key in cells:
            raise SystemExit(f"one value expected for {key}, found two")
        cells[key] = value(record)
    return list(dict.fromkeys(key[0] for key in cells)), list(dict.fromkeys(key[1] for key in cells)), cells


def pivoted_rows(labels, columns, cells):
    return [(label, [cells.get((label, column)) for column in columns]) for label in labels]


def rounded(number, places):
    return number.quantize(Decimal(1).scaleb(-places), rounding=ROUND_HALF_EVEN)


def months(first, last):
    """All months from first to last, both "YYYY-MM"."""
    year, month = map(int, first.split("-"))
    while (label := f"{year:04}-{month:02}") <= last:
        yield label
        year, month = (year, month + 1) if month < 12 else (year + 1, 1)


def fertility_by_country(datasets):
    countries = ["India", "Brazil", "China", "United States", "Japan"]
    years = range(1955, 2006, 10)
    _, _, cells = pivot(datasets.read("gapminder.json"), lambda r: r["year"], lambda r: r["country"],
                        lambda r: r["fertility"])
    write("fertility-by-country.csv", "Year", countries, pivoted_rows(years, countries, cells))


def co2_monthly(datasets):
    # The data set leaves months without a measurement out; here they are rows with empty cells, so that every
    # month is as far from the next.
    by_month = {record["Date"][:7]: record for record in datasets.read("co2-concentration.csv")}
    labels = list(months(min(by_month), max(by_month)))[-60 * 12:]
    rows = [(label, [by_month.get(label, {}).get(column) for column in ("CO2", "adjusted CO2")]) for label in labels]
    write("co2-monthly.csv", "Month", ["Measured (ppm)", "Seasonally adjusted (ppm)"], rows)


def wheat_and_wages(datasets):
    rows = [(record["year"], [record["wheat"], record.get("wages")]) for record in datasets.read("wheat.json")]
    columns = ["Wheat (shillings per quarter)", "Wages (shillings per week)"]
    write("wheat-and-wages.csv", "Year", columns, rows)


def unemployment_by_industry(datasets):
    labels, industries, cells = pivot(datasets.read("unemployment-across-industries.json"),
                                      lambda r: f"{r['year']:04}-{r['month']:02}", lambda r: r["series"],
                                      lambda r: r["rate"])
    write("unemployment-by-industry.csv", "Month", industries, pivoted_rows(sorted(labels), industries, cells))


def global_temperature(datasets):
    rows = [(record["year"], [record["temp"]]) for record in datasets.read("global-temp.csv")]
    write("global-temperature.csv", "Year", ["Anomaly (°C)"], rows)


def penguins(datasets):
    # A penguin has no name: its species and a running number within it make the row label.
    seen = defaultdict(int)
    rows = []
    for record in datasets.read("penguins.json"):
        species = record["Species"]
        seen[species] += 1
        rows.append((f"{species} {seen[species]}", [record["Flipper Length (mm)"], record["Body Mass (g)"]]))
    write("penguins.csv", "Penguin", ["Flipper length (mm)", "Body mass (g)"], rows)


def us_employment(datasets):
    # The sectors that do not overlap: together they are all jobs outside farming.
    sectors = {
        "mining_and_logging": "Mining and logging",
        "construction": "Construction",
        "manufacturing": "Manufacturing",
        "trade_transportation_utilties": "Trade, transportation and utilities",
        "information": "Information",
        "financial_activities": "Financial activities",
        "professional_and_business_services": "Professional and business services",
        "education_and_health_services": "Education and health services",
        "leisure_and_hospitality": "Leisure and hospitality",
        "other_services": "Other services",
        "government": "Government",
    }
    rows = [(record["month"][:7], [record[sector] for sector in sectors])
            for record in datasets.read("us-employment.csv")]
    write("us-employment.tsv", "Month", sectors.values(), rows, delimiter="\t")


def seattle_weather_monthly(datasets):
    days = defaultdict(list)
    for record in datasets.read("seattle-weather.csv"):
        days[record["date"][:7]].append(record)

    def total(month, column):
        return sum(Decimal(day[column]) for day in days[month])

    rows = []
    for month in sorted(days):
        highs, lows = (total(month, column) / len(days[month]) for column in ("temp_max", "temp_min"))
        cells = [rounded(highs, 1), rounded(lows, 1), rounded(total(month, "precipitation"), 1)]
        rows.append((month, [str(cell).replace(".", ",") for cell in cells]))
    columns = ["Mean high (°C)", "Mean low (°C)", "Precipitation (mm)"]
    write("seattle-weather-monthly.csv", "Month", columns, rows, delimiter=";")


def iowa_electricity(datasets):
    labels, sources, cells = pivot(datasets.read("iowa-electricity.csv"), lambda r: r["year"][:4],
                                   lambda r: r["source"], lambda r: r["net_generation"])
    write("iowa-electricity.csv", "Year", sources, pivoted_rows(labels, sources, cells))


def budget_shares(datasets):
    # In thousands of dollars. 2014 is the last year of the data set that is an outcome rather than an estimate.
    thousands = defaultdict(Decimal)
    for record in datasets.read("budget.json"):
        thousands[record["Source category name"]] += Decimal(record["2014"].replace(",", ""))
    parts = sorted(((name, amount) for name, amount in thousands.items() if amount), key=lambda part: -part[1])
    rows = [(name, [rounded(amount.scaleb(-6), 1)]) for name, amount in parts]
    write("budget-shares.csv", "Source", ["Receipts 2014 (billion dollars)"], rows)


def main():
    if len(sys.argv) != 2:
        raise SystemExit("usage: make-tables.py FOLDER (of the unpacked npm package vega-datasets)")
    datasets = Datasets(sys.argv[1])
    for make in (fertility_by_country, co2_monthly, wheat_and_wages, unemployment_by_industry, global_temperature,
                 penguins, us_employment, seattle_weather_monthly, iowa_electricity, budget_shares):
        make(datasets)


if __name__ == "__main__":
    main()
