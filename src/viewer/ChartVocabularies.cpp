#include "viewer/ChartVocabularies.h"

namespace QmChart6 {

namespace {

ChartVocabulary Portuguese() {
    ChartVocabulary words;
    words.chart = QStringLiteral("Gráfico");
    words.kinds = {
        {ChartType::Bar3D, QStringLiteral("Gráfico de barras 3D")},
        {ChartType::Bar2D, QStringLiteral("Gráfico de barras")},
        {ChartType::Line3D, QStringLiteral("Gráfico de linhas 3D")},
        {ChartType::Line2D, QStringLiteral("Gráfico de linhas")},
        {ChartType::Area3D, QStringLiteral("Gráfico de áreas 3D")},
        {ChartType::Area2D, QStringLiteral("Gráfico de áreas")},
        {ChartType::Step3D, QStringLiteral("Gráfico de degraus 3D")},
        {ChartType::Step2D, QStringLiteral("Gráfico de degraus")},
        {ChartType::Combination3D, QStringLiteral("Gráfico combinado 3D")},
        {ChartType::Combination2D, QStringLiteral("Gráfico combinado")},
        {ChartType::Pie2D, QStringLiteral("Gráfico de pizza")},
        {ChartType::XY2D, QStringLiteral("Gráfico XY")},
    };
    words.series = {QStringLiteral("%1 série"), QStringLiteral("%1 séries")};
    words.categories = {QStringLiteral("%1 categoria"), QStringLiteral("%1 categorias")};
    words.points = {QStringLiteral("%1 ponto"), QStringLiteral("%1 pontos")};
    words.contents = QStringLiteral("%1 com %2 e %3");
    words.range = QStringLiteral("valores de %1 a %2");
    words.withoutValues = QStringLiteral("sem valores");
    words.noValue = QStringLiteral("sem valor");
    words.seriesOfNumber = QStringLiteral("Série %1");
    return words;
}

ChartVocabulary Spanish() {
    ChartVocabulary words;
    words.chart = QStringLiteral("Gráfico");
    words.kinds = {
        {ChartType::Bar3D, QStringLiteral("Gráfico de barras 3D")},
        {ChartType::Bar2D, QStringLiteral("Gráfico de barras")},
        {ChartType::Line3D, QStringLiteral("Gráfico de líneas 3D")},
        {ChartType::Line2D, QStringLiteral("Gráfico de líneas")},
        {ChartType::Area3D, QStringLiteral("Gráfico de áreas 3D")},
        {ChartType::Area2D, QStringLiteral("Gráfico de áreas")},
        {ChartType::Step3D, QStringLiteral("Gráfico escalonado 3D")},
        {ChartType::Step2D, QStringLiteral("Gráfico escalonado")},
        {ChartType::Combination3D, QStringLiteral("Gráfico combinado 3D")},
        {ChartType::Combination2D, QStringLiteral("Gráfico combinado")},
        {ChartType::Pie2D, QStringLiteral("Gráfico de pastel")},
        {ChartType::XY2D, QStringLiteral("Gráfico XY")},
    };
    words.series = {QStringLiteral("%1 serie"), QStringLiteral("%1 series")};
    words.categories = {QStringLiteral("%1 categoría"), QStringLiteral("%1 categorías")};
    words.points = {QStringLiteral("%1 punto"), QStringLiteral("%1 puntos")};
    words.contents = QStringLiteral("%1 con %2 y %3");
    words.range = QStringLiteral("valores de %1 a %2");
    words.withoutValues = QStringLiteral("sin valores");
    words.noValue = QStringLiteral("sin valor");
    words.seriesOfNumber = QStringLiteral("Serie %1");
    return words;
}

ChartVocabulary Italian() {
    ChartVocabulary words;
    words.chart = QStringLiteral("Grafico");
    words.kinds = {
        {ChartType::Bar3D, QStringLiteral("Grafico a barre 3D")},
        {ChartType::Bar2D, QStringLiteral("Grafico a barre")},
        {ChartType::Line3D, QStringLiteral("Grafico a linee 3D")},
        {ChartType::Line2D, QStringLiteral("Grafico a linee")},
        {ChartType::Area3D, QStringLiteral("Grafico ad aree 3D")},
        {ChartType::Area2D, QStringLiteral("Grafico ad aree")},
        {ChartType::Step3D, QStringLiteral("Grafico a gradini 3D")},
        {ChartType::Step2D, QStringLiteral("Grafico a gradini")},
        {ChartType::Combination3D, QStringLiteral("Grafico combinato 3D")},
        {ChartType::Combination2D, QStringLiteral("Grafico combinato")},
        {ChartType::Pie2D, QStringLiteral("Grafico a torta")},
        {ChartType::XY2D, QStringLiteral("Grafico XY")},
    };
    words.series = {QStringLiteral("%1 serie"), QStringLiteral("%1 serie")};
    words.categories = {QStringLiteral("%1 categoria"), QStringLiteral("%1 categorie")};
    words.points = {QStringLiteral("%1 punto"), QStringLiteral("%1 punti")};
    words.contents = QStringLiteral("%1 con %2 e %3");
    words.range = QStringLiteral("valori da %1 a %2");
    words.withoutValues = QStringLiteral("senza valori");
    words.noValue = QStringLiteral("nessun valore");
    words.seriesOfNumber = QStringLiteral("Serie %1");
    return words;
}

} // namespace

ChartVocabulary VocabularyOf(std::int16_t language) {
    switch (language) {
    case 1:
        return Portuguese();
    case 2:
        return Spanish();
    case 3:
        return Italian();
    default:
        return {};
    }
}

} // namespace QmChart6
