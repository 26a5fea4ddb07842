#include "text/words/Words.h"

namespace QmChart6 {

namespace {

// clang-format off
constexpr TextRows Texts = [] {
    using enum TextKey;
    return TextRows{{
        {ChartViewer, u"Viewer do Gráfico"},
        {AxisTitleProperties, u"Propriedades do Título do Eixo"},
        {ChartTitleProperties, u"Propriedades do Título do Gráfico"},
        {LegendTextProperties, u"Propriedades do Texto da Legenda"},
        {DataLabelsProperties, u"Propriedades dos Rótulos de Dados"},
        {AxisLabelsProperties, u"Propriedades dos Rótulos do Eixo"},
        {FootnoteProperties, u"Propriedades da Nota de Rodapé"},
        {SeriesProperties, u"Propriedades da Série"},
        {GraphProperties, u"Propriedades do Gráfico"},
        {ControlBar, u"Barra de Controle"},
        {SendTo, u"Enviar para"},
        {Printer, u"Impressora"},
        {BmpFile, u"Arquivo .BMP"},
        {Clipboard, u"Área de Transferência"},
        {SaveConfiguration, u"Salvar Configuração"},
        {In3D, u"3D"},
        {Stack, u"Empilhar"},
        {FullStack, u"100%"},
        {Legend, u"Legenda"},
        {Flip, u"Inverter"},
        {Bar, u"Barra"},
        {Line, u"Linha"},
        {Area, u"Área"},
        {Step, u"Degrau"},
        {Combination, u"Combinação"},
        {Pie, u"Pizza"},
        {XYScatter, u"XY (Dispersão)"},
        {BarColumn, u"Barra (Coluna)"},
        {LineTape, u"Linha (Fita)"},
        {General, u"Geral"},
        {Axes, u"Eixos"},
        {Grid, u"Grade"},
        {Labels, u"Rótulos"},
        {ChartType, u"Tipo de Gráfico"},
        {Types2D, u"Tipos 2D"},
        {Types3D, u"Tipos 3D"},
        {ChartOptions, u"Opções do Gráfico"},
        {ShowLegend, u"Mostrar Legenda"},
        {ShowMarkers, u"Mostrar Marcadores"},
        {ShowLines, u"Mostrar Linhas"},
        {StackSeries, u"Empilhar Séries"},
        {FullStackSeries, u"100%"},
        {SeriesInRows, u"Séries em Linhas (Inverter)"},
        {Ok, u"OK"},
        {Cancel, u"Cancelar"},
        {Apply, u"Aplicar"},
        {ShowAxes, u"Mostrar Eixos"},
        {ShowAxisTitles, u"Mostrar Títulos dos Eixos"},
        {XAxis, u"Eixo X"},
        {PrimaryYAxis, u"Eixo Y Primário"},
        {SecondaryYAxis, u"Eixo Y Secundário"},
        {ZAxis, u"Eixo Z"},
        {XGridLines, u"Linhas de Grade X"},
        {PrimaryYGridLines, u"Linhas de Grade Y Primário"},
        {SecondaryYGridLines, u"Linhas de Grade Y Secundário"},
        {ZGridLines, u"Linhas de Grade Z"},
        {NoLine, u"Nenhuma"},
        {SolidLine, u"Contínua"},
        {DashedLine, u"Tracejada"},
        {DottedLine, u"Pontilhada"},
        {DataLabels, u"Rótulos de Dados"},
        {LabelLines, u"Linhas dos Rótulos"},
        {SeriesName, u"Nome da Série"},
        {Value, u"Valor"},
        {Percentage, u"Porcentagem"},
        {PieLabelPosition, u"Posição do Rótulo da Pizza"},
        {NoLabel, u"Nenhum"},
        {Inside, u"Dentro"},
        {Outside, u"Fora"},
        {Above, u"Acima"},
        {Below, u"Abaixo"},
        {Center, u"Centro"},
        {Left, u"Esquerda"},
        {Right, u"Direita"},
        {Base, u"Base"},
        {NoLabelLine, u"Nenhuma"},
        {StraightLabelLine, u"Reta"},
        {BentLabelLine, u"Quebrada"},
        {TextProperties, u"Propriedades do Texto"},
        {Text, u"Texto"},
        {Font, u"Fonte"},
        {Orientation, u"Orientação"},
        {Alignment, u"Alinhamento"},
        {Horizontal, u"Horizontal"},
        {Vertical, u"Vertical"},
        {Top, u"Superior"},
        {Bottom, u"Inferior"},
        {XY, u"XY"},
        {Style, u"Estilo"},
        {Name, u"Nome"},
        {Type, u"Tipo"},
        {Color, u"Cor"},
        {Statistics, u"Estatísticas"},
        {Minimum, u"Mínimo"},
        {Maximum, u"Máximo"},
        {StandardDeviation, u"Desvio Padrão"},
        {Mean, u"Média"},
        {Regression, u"Regressão"},
        {SaveCurrentConfiguration, u"Salvar Configuração atual?"},
        {LabelCenter, u"Centro"},
        {LoadConfiguration, u"Carregar Configuração"},
        {SaveConfigurationAs, u"Salvar Configuração como"},
        {Print, u"Imprimir"},
        {Design, u"Design"},
        {BackgroundColor, u"Cor de Fundo"},
        {Projection3D, u"Projeção 3D"},
        {Perspective, u"Perspectiva"},
        {Oblique, u"Oblíqua"},
        {Orthogonal, u"Ortogonal"},
        {Delete, u"Excluir"},
        {AvailableConfigurations, u"Configurações Disponíveis"},
        {MakeDefaultConfiguration, u"Definir como Configuração Padrão"},
        {LoadTitles, u"Carregar Títulos"},
        {ConfigurationExists, u"Configuração _ Já Existe. Sobrescrever?)"},
        {DeleteConfiguration, u"Excluir Configuração"},
        {ChartName, u"Nome do Gráfico"},
        {ConfigurationName, u"Nome da Configuração"},
        {Status, u"Status"},
        {ConfigurationLoaded, u"Configuração Carregada"},
        {ConfigurationSaved, u"Configuração Salva"},
        {PrintingInProgress, u"Impressão em Andamento"},
        {SnapshotSaved, u"Imagem Salva"},
    }};
}();
// clang-format on
static_assert(IsWhole(Texts));

// clang-format off
constexpr HintRows Hints = [] {
    using enum Hint;
    return HintRows{{
        {NothingChosen, u"Nada selecionado: OK carrega o aspecto padrão"},
        {NoFill, u"Nenhum"},
        {SolidFill, u"Sólido"},
        {Dots, u"Pontos, %1%"},
        {BoldHorizontalLines, u"Linhas horizontais grossas"},
        {BoldVerticalLines, u"Linhas verticais grossas"},
        {BoldFallingLines, u"Linhas descendentes grossas"},
        {BoldRisingLines, u"Linhas ascendentes grossas"},
        {Checks, u"Xadrez"},
        {Weave, u"Trama"},
        {HorizontalLines, u"Linhas horizontais"},
        {VerticalLines, u"Linhas verticais"},
        {FallingLines, u"Linhas descendentes"},
        {RisingLines, u"Linhas ascendentes"},
        {Squares, u"Quadrados"},
        {Trellis, u"Treliça"},
        {InvertedTrellis, u"Treliça invertida"},
        {HorizontalHatch, u"Hachura horizontal"},
        {VerticalHatch, u"Hachura vertical"},
        {FallingHatch, u"Hachura descendente"},
        {RisingHatch, u"Hachura ascendente"},
        {CrossHatch, u"Hachura cruzada"},
        {DiagonalCrossHatch, u"Hachura cruzada diagonal"},
        {FontNotInstalled, u"%1 não está instalada; %2 é desenhada em seu lugar"},
        {PictureForm, u"Formato"},
        {NoSuchPictureForm, u"\"%1\" não é uma imagem que se possa gravar; o nome termina em %2"},
        {PrintPreview, u"Visualizar Impressão"},
        {KeysAndMouse, u"Teclas e Mouse"},
        {ThisCard, u"Este cartão"},
        {CopyChart, u"Copiar o gráfico"},
        {SavePicture, u"Salvar uma imagem"},
        {PrintTheChart, u"Imprimir o gráfico"},
        {TakeBack, u"Desfazer"},
        {DoAgain, u"Refazer"},
        {WalkParts, u"Selecionar a próxima parte ou a anterior"},
        {WalkPoints, u"Percorrer os pontos e as séries"},
        {EndPoints, u"Primeiro ou último ponto"},
        {EditPart, u"Propriedades da parte selecionada"},
        {PartMenu, u"Menu da parte"},
        {SelectNothing, u"Não selecionar nada"},
        {SelectPart, u"Selecionar uma parte"},
        {TurnView, u"Girar um gráfico 3D"},
        {ArrowKeys, u"Setas"},
        {Click, u"Clique"},
        {DoubleClick, u"Clique duplo"},
        {RightClick, u"Clique com o botão direito"},
        {CtrlDrag, u"Ctrl+arrastar"},
        {MovePart, u"Mover o título, a nota de rodapé ou a legenda"},
        {MoveByAPoint, u"Movê-lo em um ponto"},
        {OwnPlace, u"De volta ao seu lugar"},
        {Dragging, u"Arrastar"},
        {CtrlArrowKeys, u"Ctrl+setas"},
    }};
}();
// clang-format on
static_assert(IsWhole(Hints));

constexpr Remarks Said{
    u"%1 rótulos de dados não têm espaço",
    u"o gráfico é pequeno demais para os rótulos dos eixos",
    u"o gráfico é pequeno demais para a área de plotagem",
    u"a legenda não tem espaço para %1 de %2 séries",
    u"%1 de %2 pizzas não têm espaço",
    u"não há valor a mostrar",
    u"%1 valor negativo não tem fatia",
    u"%1 valores negativos não têm fatia",
    u"%1 zero não tem fatia",
    u"%1 zeros não têm fatia",
    u"%1 valor não está acima de zero e não tem lugar em um eixo logarítmico",
    u"%1 valores não estão acima de zero e não têm lugar em um eixo logarítmico",
    u"exceto %1 propriedades para as quais este arquivo não tem lugar",
};
static_assert(IsWhole(Said));

ChartVocabulary ChartWords() {
    ChartVocabulary words;
    words.chart = QStringLiteral("Gráfico");
    words.kinds = {
        QStringLiteral("Gráfico de barras 3D"),  QStringLiteral("Gráfico de barras"),
        QStringLiteral("Gráfico de linhas 3D"),  QStringLiteral("Gráfico de linhas"),
        QStringLiteral("Gráfico de áreas 3D"),   QStringLiteral("Gráfico de áreas"),
        QStringLiteral("Gráfico de degraus 3D"), QStringLiteral("Gráfico de degraus"),
        QStringLiteral("Gráfico combinado 3D"),  QStringLiteral("Gráfico combinado"),
        QStringLiteral("Gráfico de pizza"),      QStringLiteral("Gráfico XY"),
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

} // namespace

extern const Words PortugueseWords{Texts, Hints, Said, ChartWords};

} // namespace QmChart6
