#include "text/words/Words.h"

namespace QmChart6 {

namespace {

// clang-format off
constexpr TextRows Texts = [] {
    using enum TextKey;
    return TextRows{{
        {ChartViewer, u"Chart Viewer"},
        {AxisTitleProperties, u"Propiedades del Título del Eje"},
        {ChartTitleProperties, u"Propiedades del Título de la Gráfica"},
        {LegendTextProperties, u"Propiedades del Texto de la Leyenda"},
        {DataLabelsProperties, u"Propiedades de las Etiquetas de Datos"},
        {AxisLabelsProperties, u"Propiedades de las Etiquetas del Eje"},
        {FootnoteProperties, u"Propiedades de la Nota al Pie"},
        {SeriesProperties, u"Propiedades de la Serie"},
        {GraphProperties, u"Propiedades de la Gráfica"},
        {ControlBar, u"Barra de Control"},
        {SendTo, u"Enviar a"},
        {Printer, u"Impresora"},
        {BmpFile, u"Archivo .BMP"},
        {Clipboard, u"Portapapeles"},
        {SaveConfiguration, u"Guardar Configuración"},
        {In3D, u"3D"},
        {Stack, u"Apilar"},
        {FullStack, u"100%"},
        {Legend, u"Leyenda"},
        {Flip, u"Invertir"},
        {Bar, u"Barra"},
        {Line, u"Línea"},
        {Area, u"Área"},
        {Step, u"Escalón"},
        {Combination, u"Combinación"},
        {Pie, u"Pastel"},
        {XYScatter, u"XY (Dispersión)"},
        {BarColumn, u"Barra (Columna)"},
        {LineTape, u"Línea (Cinta)"},
        {General, u"General"},
        {Axes, u"Ejes"},
        {Grid, u"Cuadrícula"},
        {Labels, u"Etiquetas"},
        {ChartType, u"Tipo de Gráfica"},
        {Types2D, u"Tipos 2D"},
        {Types3D, u"Tipos 3D"},
        {ChartOptions, u"Opciones de la Gráfica"},
        {ShowLegend, u"Mostrar Leyenda"},
        {ShowMarkers, u"Mostrar Marcadores"},
        {ShowLines, u"Mostrar Líneas"},
        {StackSeries, u"Apilar Series"},
        {FullStackSeries, u"100%"},
        {SeriesInRows, u"Series en Filas (Invertir)"},
        {Ok, u"Aceptar"},
        {Cancel, u"Cancelar"},
        {Apply, u"Aplicar"},
        {ShowAxes, u"Mostrar Ejes"},
        {ShowAxisTitles, u"Mostrar Títulos de los Ejes"},
        {XAxis, u"Eje X"},
        {PrimaryYAxis, u"Eje Y Primario"},
        {SecondaryYAxis, u"Eje Y Secundario"},
        {ZAxis, u"Eje Z"},
        {XGridLines, u"Líneas de Cuadrícula X"},
        {PrimaryYGridLines, u"Líneas de Cuadrícula Y Primario"},
        {SecondaryYGridLines, u"Líneas de Cuadrícula Y Secundario"},
        {ZGridLines, u"Líneas de Cuadrícula Z"},
        {NoLine, u"Ninguna"},
        {SolidLine, u"Continua"},
        {DashedLine, u"Discontinua"},
        {DottedLine, u"Punteada"},
        {DataLabels, u"Etiquetas de Datos"},
        {LabelLines, u"Líneas de las Etiquetas"},
        {SeriesName, u"Nombre de la Serie"},
        {Value, u"Valor"},
        {Percentage, u"Porcentaje"},
        {PieLabelPosition, u"Posición de la Etiqueta del Pastel"},
        {NoLabel, u"Ninguna"},
        {Inside, u"Dentro"},
        {Outside, u"Fuera"},
        {Above, u"Encima"},
        {Below, u"Debajo"},
        {Center, u"Centro"},
        {Left, u"Izquierda"},
        {Right, u"Derecha"},
        {Base, u"Base"},
        {NoLabelLine, u"Ninguna"},
        {StraightLabelLine, u"Recta"},
        {BentLabelLine, u"Quebrada"},
        {TextProperties, u"Propiedades del Texto"},
        {Text, u"Texto"},
        {Font, u"Fuente"},
        {Orientation, u"Orientación"},
        {Alignment, u"Alineación"},
        {Horizontal, u"Horizontal"},
        {Vertical, u"Vertical"},
        {Top, u"Superior"},
        {Bottom, u"Inferior"},
        {XY, u"XY"},
        {Style, u"Estilo"},
        {Name, u"Nombre"},
        {Type, u"Tipo"},
        {Color, u"Color"},
        {Statistics, u"Estadísticas"},
        {Minimum, u"Mínimo"},
        {Maximum, u"Máximo"},
        {StandardDeviation, u"Desviación Estándar"},
        {Mean, u"Media"},
        {Regression, u"Regresión"},
        {SaveCurrentConfiguration, u"¿Guardar Configuración Actual?"},
        {LabelCenter, u"Centro"},
        {LoadConfiguration, u"Cargar Configuración"},
        {SaveConfigurationAs, u"Guardar Configuración como"},
        {Print, u"Imprimir"},
        {Design, u"Diseño"},
        {BackgroundColor, u"Color de Fondo"},
        {Projection3D, u"Proyección 3D"},
        {Perspective, u"Perspectiva"},
        {Oblique, u"Oblicua"},
        {Orthogonal, u"Ortogonal"},
        {Delete, u"Eliminar"},
        {AvailableConfigurations, u"Configuraciones Disponibles"},
        {MakeDefaultConfiguration, u"Establecer como Configuración Predeterminada"},
        {LoadTitles, u"Cargar Títulos"},
        {ConfigurationExists, u"Configuración _ Ya Existente. Sobreescribir?"},
        {DeleteConfiguration, u"Eliminar Configuración"},
        {ChartName, u"Nombre de la Gráfica"},
        {ConfigurationName, u"Nombre de la Configuración"},
        {Status, u"Estado"},
        {ConfigurationLoaded, u"Configuración Cargada"},
        {ConfigurationSaved, u"Configuración Guardada"},
        {PrintingInProgress, u"Impresión en Curso"},
        {SnapshotSaved, u"Imagen Guardada"},
    }};
}();
// clang-format on
static_assert(IsWhole(Texts));

// clang-format off
constexpr HintRows Hints = [] {
    using enum Hint;
    return HintRows{{
        {NothingChosen, u"Nada seleccionado: Aceptar carga el aspecto predeterminado"},
        {NoFill, u"Sin relleno"},
        {SolidFill, u"Sólido"},
        {Dots, u"Puntos, %1%"},
        {BoldHorizontalLines, u"Líneas horizontales gruesas"},
        {BoldVerticalLines, u"Líneas verticales gruesas"},
        {BoldFallingLines, u"Líneas descendentes gruesas"},
        {BoldRisingLines, u"Líneas ascendentes gruesas"},
        {Checks, u"Cuadros"},
        {Weave, u"Tejido"},
        {HorizontalLines, u"Líneas horizontales"},
        {VerticalLines, u"Líneas verticales"},
        {FallingLines, u"Líneas descendentes"},
        {RisingLines, u"Líneas ascendentes"},
        {Squares, u"Cuadrícula"},
        {Trellis, u"Enrejado"},
        {InvertedTrellis, u"Enrejado invertido"},
        {HorizontalHatch, u"Trama horizontal"},
        {VerticalHatch, u"Trama vertical"},
        {FallingHatch, u"Trama descendente"},
        {RisingHatch, u"Trama ascendente"},
        {CrossHatch, u"Trama cruzada"},
        {DiagonalCrossHatch, u"Trama cruzada diagonal"},
        {FontNotInstalled, u"%1 no está instalada; se dibuja %2 en su lugar"},
        {PictureForm, u"Formato"},
        {NoSuchPictureForm, u"\"%1\" no es una imagen que se pueda guardar; el nombre termina en %2"},
        {PrintPreview, u"Vista Preliminar"},
        {KeysAndMouse, u"Teclas y Ratón"},
        {ThisCard, u"Esta ficha"},
        {CopyChart, u"Copiar la gráfica"},
        {SavePicture, u"Guardar una imagen"},
        {PrintTheChart, u"Imprimir la gráfica"},
        {TakeBack, u"Deshacer"},
        {DoAgain, u"Rehacer"},
        {WalkParts, u"Seleccionar la parte siguiente o la anterior"},
        {WalkPoints, u"Recorrer los puntos y las series"},
        {EndPoints, u"Primer o último punto"},
        {EditPart, u"Propiedades de la parte seleccionada"},
        {PartMenu, u"Menú de la parte"},
        {SelectNothing, u"No seleccionar nada"},
        {SelectPart, u"Seleccionar una parte"},
        {TurnView, u"Girar una gráfica 3D"},
        {ArrowKeys, u"Flechas"},
        {Click, u"Clic"},
        {DoubleClick, u"Doble clic"},
        {RightClick, u"Clic con el botón derecho"},
        {CtrlDrag, u"Ctrl+arrastrar"},
        {MovePart, u"Mover el título, la nota al pie o la leyenda"},
        {MoveByAPoint, u"Moverlo un punto"},
        {OwnPlace, u"De vuelta a su lugar"},
        {Dragging, u"Arrastrar"},
        {CtrlArrowKeys, u"Ctrl+flechas"},
    }};
}();
// clang-format on
static_assert(IsWhole(Hints));

constexpr Remarks Said{
    u"%1 etiquetas de datos no tienen espacio",
    u"la gráfica es demasiado pequeña para las etiquetas de los ejes",
    u"la gráfica es demasiado pequeña para el área de trazado",
    u"la leyenda no tiene espacio para %1 de %2 series",
    u"%1 de %2 pasteles no tienen espacio",
    u"no hay valor que mostrar",
    u"%1 valor negativo no tiene sector",
    u"%1 valores negativos no tienen sector",
    u"%1 cero no tiene sector",
    u"%1 ceros no tienen sector",
    u"%1 valor no es mayor que cero y no tiene lugar en un eje logarítmico",
    u"%1 valores no son mayores que cero y no tienen lugar en un eje logarítmico",
    u"salvo %1 propiedades para las que este archivo no tiene lugar",
};
static_assert(IsWhole(Said));

ChartVocabulary ChartWords() {
    ChartVocabulary words;
    words.chart = QStringLiteral("Gráfica");
    words.kinds = {
        QStringLiteral("Gráfica de barras 3D"),  QStringLiteral("Gráfica de barras"),
        QStringLiteral("Gráfica de líneas 3D"),  QStringLiteral("Gráfica de líneas"),
        QStringLiteral("Gráfica de áreas 3D"),   QStringLiteral("Gráfica de áreas"),
        QStringLiteral("Gráfica escalonada 3D"), QStringLiteral("Gráfica escalonada"),
        QStringLiteral("Gráfica combinada 3D"),  QStringLiteral("Gráfica combinada"),
        QStringLiteral("Gráfica de pastel"),     QStringLiteral("Gráfica XY"),
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

} // namespace

extern const Words SpanishWords{Texts, Hints, Said, ChartWords};

} // namespace QmChart6
