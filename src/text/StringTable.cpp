#include "text/StringTable.h"

#include <array>
#include <cstddef>

namespace QmChart6 {

namespace {

constexpr std::int32_t firstId = 30000;
constexpr std::int32_t idsOfAKey = 10;

/// The texts of one key, in the order of the language codes: English, Portuguese, Spanish, Italian.
using TextsOfKey = std::array<std::u16string_view, 4>;

// Equal English texts under several keys are no oversight: each stands in a place of its own, and agrees in
// gender with another noun there. Odd texts (a lone ")", a viewer left in English) are meant to stay as they
// are.
// clang-format off
constexpr std::array<TextsOfKey, 122> strings{{
    /*   0 */ {u"Chart Viewer", u"Viewer do Gráfico", u"Chart Viewer", u"Chart Viewer"},
    /*   1 */ {u"Axis Title Properties", u"Propriedades do Título do Eixo", u"Propiedades del Título del Eje", u"Proprietà Titolo Asse"},
    /*   2 */ {u"Chart Title Properties", u"Propriedades do Título do Gráfico", u"Propiedades del Título de la Gráfica", u"Proprietà Titolo Grafico"},
    /*   3 */ {u"Legend Text Properties", u"Propriedades do Texto da Legenda", u"Propiedades del Texto de la Leyenda", u"Proprietà Testo Legenda"},
    /*   4 */ {u"Data Labels Properties", u"Propriedades dos Rótulos de Dados", u"Propiedades de las Etiquetas de Datos", u"Proprietà Etichette Dati"},
    /*   5 */ {u"Axis Labels Properties", u"Propriedades dos Rótulos do Eixo", u"Propiedades de las Etiquetas del Eje", u"Proprietà Etichette Asse"},
    /*   6 */ {u"Footnote Properties", u"Propriedades da Nota de Rodapé", u"Propiedades de la Nota al Pie", u"Proprietà Nota a Piè di Pagina"},
    /*   7 */ {u"Series Properties", u"Propriedades da Série", u"Propiedades de la Serie", u"Proprietà Serie"},
    /*   8 */ {u"Graph Properties", u"Propriedades do Gráfico", u"Propiedades de la Gráfica", u"Proprietà Grafico"},
    /*   9 */ {u"Control Bar", u"Barra de Controle", u"Barra de Control", u"Barra di Controllo"},
    /*  10 */ {u"Send To", u"Enviar Para", u"Enviar A", u"Invia A"},
    /*  11 */ {u"Printer", u"Impressora", u"Impresora", u"Stampante"},
    /*  12 */ {u".BMP File", u"Arquivo .BMP", u"Archivo .BMP", u"File .BMP"},
    /*  13 */ {u"Clipboard", u"Área de Transferência", u"Portapapeles", u"Appunti"},
    /*  14 */ {u"Save Configuration", u"Salvar Configuração", u"Guardar Configuración", u"Salva Configurazione"},
    /*  15 */ {u"3D", u"3D", u"3D", u"3D"},
    /*  16 */ {u"Stack", u"Empilhar", u"Apilar", u"Impila"},
    /*  17 */ {u"100%", u"100%", u"100%", u"100%"},
    /*  18 */ {u"Legend", u"Legenda", u"Leyenda", u"Legenda"},
    /*  19 */ {u"Flip", u"Inverter", u"Invertir", u"Inverti"},
    /*  20 */ {u"Bar", u"Barra", u"Barra", u"Barra"},
    /*  21 */ {u"Line", u"Linha", u"Línea", u"Linea"},
    /*  22 */ {u"Area", u"Área", u"Área", u"Area"},
    /*  23 */ {u"Step", u"Degrau", u"Escalón", u"Gradino"},
    /*  24 */ {u"Combination", u"Combinação", u"Combinación", u"Combinazione"},
    /*  25 */ {u"Pie", u"Pizza", u"Pastel", u"Torta"},
    /*  26 */ {u"XY (Scatter)", u"XY (Dispersão)", u"XY (Dispersión)", u"XY (Dispersione)"},
    /*  27 */ {u"Bar (Column)", u"Barra (Coluna)", u"Barra (Columna)", u"Barra (Colonna)"},
    /*  28 */ {u"Line (Tape)", u"Linha (Fita)", u"Línea (Cinta)", u"Linea (Nastro)"},
    /*  29 */ {u"General", u"Geral", u"General", u"Generale"},
    /*  30 */ {u"Axes", u"Eixos", u"Ejes", u"Assi"},
    /*  31 */ {u"Grid", u"Grade", u"Cuadrícula", u"Griglia"},
    /*  32 */ {u"Labels", u"Rótulos", u"Etiquetas", u"Etichette"},
    /*  33 */ {u"Chart Type", u"Tipo de Gráfico", u"Tipo de Gráfica", u"Tipo di Grafico"},
    /*  34 */ {u"2D Types", u"Tipos 2D", u"Tipos 2D", u"Tipi 2D"},
    /*  35 */ {u"3D Types", u"Tipos 3D", u"Tipos 3D", u"Tipi 3D"},
    /*  36 */ {u"Chart Options", u"Opções do Gráfico", u"Opciones de la Gráfica", u"Opzioni Grafico"},
    /*  37 */ {u"Show Legend", u"Mostrar Legenda", u"Mostrar Leyenda", u"Mostra Legenda"},
    /*  38 */ {u"Show Markers", u"Mostrar Marcadores", u"Mostrar Marcadores", u"Mostra Indicatori"},
    /*  39 */ {u"Show Lines", u"Mostrar Linhas", u"Mostrar Líneas", u"Mostra Linee"},
    /*  40 */ {u"Stack Series", u"Empilhar Séries", u"Apilar Series", u"Impila Serie"},
    /*  41 */ {u"100%", u"100%", u"100%", u"100%"},
    /*  42 */ {u"Series In Rows (Flip)", u"Séries em Linhas (Inverter)", u"Series en Filas (Invertir)", u"Serie in Righe (Inverti)"},
    /*  43 */ {u"OK", u"OK", u"Aceptar", u"OK"},
    /*  44 */ {u"Cancel", u"Cancelar", u"Cancelar", u"Annulla"},
    /*  45 */ {u"Apply", u"Aplicar", u"Aplicar", u"Applica"},
    /*  46 */ {u"Show Axes", u"Mostrar Eixos", u"Mostrar Ejes", u"Mostra Assi"},
    /*  47 */ {u"Show Axis Titles", u"Mostrar Títulos dos Eixos", u"Mostrar Títulos de los Ejes", u"Mostra Titoli Assi"},
    /*  48 */ {u"X Axis", u"Eixo X", u"Eje X", u"Asse X"},
    /*  49 */ {u"Primary Y Axis", u"Eixo Y Primário", u"Eje Y Primario", u"Asse Y Primario"},
    /*  50 */ {u"Secondary Y Axis", u"Eixo Y Secundário", u"Eje Y Secundario", u"Asse Y Secondario"},
    /*  51 */ {u"Z Axis", u"Eixo Z", u"Eje Z", u"Asse Z"},
    /*  52 */ {u"X Grid Lines", u"Linhas de Grade X", u"Líneas de Cuadrícula X", u"Linee Griglia X"},
    /*  53 */ {u"Primary Y Grid Lines", u"Linhas de Grade Y Primário", u"Líneas de Cuadrícula Y Primario", u"Linee Griglia Y Primario"},
    /*  54 */ {u"Secondary Y Grid Lines", u"Linhas de Grade Y Secundário", u"Líneas de Cuadrícula Y Secundario", u"Linee Griglia Y Secondario"},
    /*  55 */ {u"Z Grid Lines", u"Linhas de Grade Z", u"Líneas de Cuadrícula Z", u"Linee Griglia Z"},
    /*  56 */ {u"None", u"Nenhuma", u"Ninguna", u"Nessuna"},
    /*  57 */ {u"Solid", u"Contínua", u"Continua", u"Continua"},
    /*  58 */ {u"Dashed", u"Tracejada", u"Discontinua", u"Tratteggiata"},
    /*  59 */ {u"Dotted", u"Pontilhada", u"Punteada", u"Punteggiata"},
    /*  60 */ {u"Data Labels", u"Rótulos de Dados", u"Etiquetas de Datos", u"Etichette Dati"},
    /*  61 */ {u"Label Lines", u"Linhas dos Rótulos", u"Líneas de las Etiquetas", u"Linee Etichette"},
    /*  62 */ {u"Series Name", u"Nome da Série", u"Nombre de la Serie", u"Nome Serie"},
    /*  63 */ {u"Value", u"Valor", u"Valor", u"Valore"},
    /*  64 */ {u"Percentage", u"Porcentagem", u"Porcentaje", u"Percentuale"},
    /*  65 */ {u"Pie Label Position", u"Posição do Rótulo da Pizza", u"Posición de la Etiqueta del Pastel", u"Posizione Etichetta Torta"},
    /*  66 */ {u"None", u"Nenhum", u"Ninguna", u"Nessuna"},
    /*  67 */ {u"Inside", u"Dentro", u"Dentro", u"Interno"},
    /*  68 */ {u"Outside", u"Fora", u"Fuera", u"Esterno"},
    /*  69 */ {u"Above", u"Acima", u"Encima", u"Sopra"},
    /*  70 */ {u"Below", u"Abaixo", u"Debajo", u"Sotto"},
    /*  71 */ {u"Center", u"Centro", u"Centro", u"Centro"},
    /*  72 */ {u"Left", u"Esquerda", u"Izquierda", u"Sinistra"},
    /*  73 */ {u"Right", u"Direita", u"Derecha", u"Destra"},
    /*  74 */ {u"Base", u"Base", u"Base", u"Base"},
    /*  75 */ {u"None", u"Nenhuma", u"Ninguna", u"Nessuna"},
    /*  76 */ {u"Straight", u"Reta", u"Recta", u"Retta"},
    /*  77 */ {u"Bent", u"Quebrada", u"Quebrada", u"Spezzata"},
    /*  78 */ {u"Text Properties", u"Propriedades do Texto", u"Propiedades del Texto", u"Proprietà Testo"},
    /*  79 */ {u"Text", u"Texto", u"Texto", u"Testo"},
    /*  80 */ {u"Font", u"Fonte", u"Fuente", u"Carattere"},
    /*  81 */ {u"Orientation", u"Orientação", u"Orientación", u"Orientamento"},
    /*  82 */ {u"Alignment", u"Alinhamento", u"Alineación", u"Allineamento"},
    /*  83 */ {u"Horizontal", u"Horizontal", u"Horizontal", u"Orizzontale"},
    /*  84 */ {u"Vertical", u"Vertical", u"Vertical", u"Verticale"},
    /*  85 */ {u"Top", u"Superior", u"Superior", u"In Alto"},
    /*  86 */ {u"Bottom", u"Inferior", u"Inferior", u"In Basso"},
    /*  87 */ {u"XY", u"XY", u"XY", u"XY"},
    /*  88 */ {u"Style", u"Estilo", u"Estilo", u"Stile"},
    /*  89 */ {u"Name", u"Nome", u"Nombre", u"Nome"},
    /*  90 */ {u"Type", u"Tipo", u"Tipo", u"Tipo"},
    /*  91 */ {u"Color", u"Cor", u"Color", u"Colore"},
    /*  92 */ {u"Statistics", u"Estatísticas", u"Estadísticas", u"Statistiche"},
    /*  93 */ {u"Minimum", u"Mínimo", u"Mínimo", u"Minimo"},
    /*  94 */ {u"Maximum", u"Máximo", u"Máximo", u"Massimo"},
    /*  95 */ {u"Standard Deviation", u"Desvio Padrão", u"Desviación Estándar", u"Deviazione Standard"},
    /*  96 */ {u"Mean", u"Média", u"Media", u"Media"},
    /*  97 */ {u"Regression", u"Regressão", u"Regresión", u"Regressione"},
    /*  98 */ {u"Save Current Configuration?", u"Salvar Configuração atual?", u"¿Guardar Configuración Actual?", u"Salvare le modifiche apportate?"},
    /*  99 */ {u"Center", u"Centro", u"Centro", u"Centro"},
    /* 100 */ {u"Load Configuration", u"Carregar Configuração", u"Cargar Configuración", u"Carica Configurazione"},
    /* 101 */ {u"Save Configuration As", u"Salvar Configuração Como", u"Guardar Configuración Como", u"Salva Configurazione Con Nome"},
    /* 102 */ {u"Print", u"Imprimir", u"Imprimir", u"Stampa"},
    /* 103 */ {u"Design", u"Design", u"Diseño", u"Aspetto"},
    /* 104 */ {u"Background Color", u"Cor de Fundo", u"Color de Fondo", u"Colore Sfondo"},
    /* 105 */ {u"3D Projection", u"Projeção 3D", u"Proyección 3D", u"Proiezione 3D"},
    /* 106 */ {u"Perspective", u"Perspectiva", u"Perspectiva", u"Prospettiva"},
    /* 107 */ {u"Oblique", u"Oblíqua", u"Oblicua", u"Obliqua"},
    /* 108 */ {u"Orthogonal", u"Ortogonal", u"Ortogonal", u"Ortogonale"},
    /* 109 */ {u"Delete", u"Excluir", u"Eliminar", u"Elimina"},
    /* 110 */ {u"Available Configurations", u"Configurações Disponíveis", u"Configuraciones Disponibles", u"Configurazioni Disponibili"},
    /* 111 */ {u"Make Default Configuration", u"Tornar Configuração Padrão", u"Hacer Configuración Predeterminada", u"Rendi Configurazione Predefinita"},
    /* 112 */ {u"Load Titles", u"Carregar Títulos", u"Cargar Títulos", u"Carica Titoli"},
    /* 113 */ {u"Configuration _ Already Exists. Overwrite?", u"Configuração _ Já Existe. Sobrescrever?)", u"Configuración _ Ya Existente. Sobreescribir?", u"Configurazione _ Esiste Già. Sostituire?)"},
    /* 114 */ {u"Delete Configuration", u"Excluir Configuração", u"Eliminar Configuración", u"Elimina Configurazione"},
    /* 115 */ {u"Chart Name", u"Nome do Gráfico", u"Nombre de la Gráfica", u"Nome Grafico"},
    /* 116 */ {u"Configuration Name", u"Nome da Configuração", u"Nombre de la Configuración", u"Nome Configurazione"},
    /* 117 */ {u"Status", u"Status", u"Estado", u"Stato"},
    /* 118 */ {u"Configuration Loaded", u"Configuração Carregada", u"Configuración Cargada", u"Configurazione Caricata"},
    /* 119 */ {u"Configuration Saved", u"Configuração Salva", u"Configuración Guardada", u"Configurazione Salvata"},
    /* 120 */ {u"Printing In Progress", u"Impressão em Andamento", u"Impresión en Curso", u"Stampa in Corso"},
    /* 121 */ {u"Snapshot Saved", u"Imagem Salva", u"Imagen Guardada", u"Immagine Salvata"},
}};
// clang-format on

} // namespace

std::optional<std::u16string_view> StringOfId(std::int32_t id) {
    if (id < firstId) return std::nullopt;
    const auto key = static_cast<std::size_t>((id - firstId) / idsOfAKey);
    const auto language = static_cast<std::size_t>((id - firstId) % idsOfAKey);
    if (key >= strings.size() || language >= TextsOfKey{}.size()) return std::nullopt;
    return strings[key][language];
}

} // namespace QmChart6
