<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Texts</name>
    <message>
        <source>Usage: quorvin [LISTING]
       quorvin --search TEXT | --folder FOLDER | --rescan | --manual
Opens the window in which listings are searched. A LISTING has settings and folders of its own.

  --search TEXT    search for TEXT
  --folder FOLDER  search in FOLDER, which is catalogued first if you agree
  --rescan         rescan the local search folders
  --manual         open the manual
  --help           show this and end
  --version        show the version and end

quorvin-cli does the same searches in the terminal.
</source>
        <translation>Uso: quorvin [LISTING]
     quorvin --search TEXT | --folder FOLDER | --rescan | --manual
Abre la ventana en la que se busca en las listas. Una lista (LISTING) tiene ajustes y carpetas propios.

  --search TEXT    buscar TEXT
  --folder FOLDER  buscar en FOLDER, que antes se cataloga si usted lo acepta
  --rescan         releer las carpetas de búsqueda locales
  --manual         abrir el manual
  --help           mostrar esta ayuda y terminar
  --version        mostrar la versión y terminar

quorvin-cli hace las mismas búsquedas en el terminal.
</translation>
    </message>
    <message>
        <source>Run-time error: Out of memory</source>
        <translation>Error de ejecución: memoria insuficiente</translation>
    </message>
    <message>
        <source>Run-time error: %1</source>
        <translation>Error de ejecución: %1</translation>
    </message>
    <message>
        <source>This happened while %1.</source>
        <translation>Ocurrió durante esta operación: %1.</translation>
    </message>
    <message>
        <source>Try: %1</source>
        <translation>Pruebe: %1</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>opción %1 desconocida</translation>
    </message>
    <message>
        <source>the option %1 needs a value</source>
        <translation>a la opción %1 le falta un valor</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Pregunta</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>handling an event of the window system</source>
        <translation>tratamiento de un evento del sistema de ventanas</translation>
    </message>
    <message>
        <source>The rescan has ended</source>
        <translation>La relectura ha terminado</translation>
    </message>
    <message>
        <source>editing the local folders</source>
        <translation>edición de las carpetas locales</translation>
    </message>
    <message>
        <source>editing the offline lists</source>
        <translation>edición de las listas sin conexión</translation>
    </message>
    <message>
        <source>refreshing the local lists</source>
        <translation>actualización de las listas locales</translation>
    </message>
    <message>
        <source>showing the listing history</source>
        <translation>muestra del historial de listas</translation>
    </message>
    <message>
        <source>exporting hits</source>
        <translation>exportación de resultados</translation>
    </message>
    <message>
        <source>editing the options</source>
        <translation>edición de las opciones</translation>
    </message>
    <message>
        <source>sharing lists</source>
        <translation>publicación de listas</translation>
    </message>
    <message>
        <source>getting lists from a peer</source>
        <translation>obtención de listas de otro equipo</translation>
    </message>
    <message>
        <source>opening the help</source>
        <translation>apertura de la ayuda</translation>
    </message>
    <message>
        <source>showing the about window</source>
        <translation>muestra de la ventana «Acerca de»</translation>
    </message>
    <message>
        <source>No hit has these words.

Esc closes the filter and shows all hits.</source>
        <translation>Ningún resultado contiene estas palabras.

Esc cierra el filtro y muestra todos los resultados.</translation>
    </message>
    <message>
        <source>There is nothing to search yet.</source>
        <translation>Todavía no hay dónde buscar.</translation>
    </message>
    <message>
        <source>saving. The program stays open; close it again to leave</source>
        <translation>guardar. El programa sigue abierto; ciérrelo otra vez para salir</translation>
    </message>
    <message>
        <source>Search text</source>
        <translation>Texto de búsqueda</translation>
    </message>
    <message>
        <source>Words from the name or folder, for example: rock live</source>
        <translation>Palabras del nombre o de la carpeta, por ejemplo: rock live</translation>
    </message>
    <message>
        <source>Entries that contain more than this share of the words are shown</source>
        <translation>Se muestran las entradas que contienen más de esta parte de las palabras</translation>
    </message>
    <message>
        <source>Desired match in percent</source>
        <translation>Grado deseado en tanto por ciento</translation>
    </message>
    <message>
        <source>Search While &amp;Typing</source>
        <translation>&amp;Buscar al escribir</translation>
    </message>
    <message>
        <source>&amp;Keep Search History</source>
        <translation>&amp;Mantener el historial de búsquedas</translation>
    </message>
    <message>
        <source>Clear Search &amp;History</source>
        <translation>B&amp;orrar el historial de búsquedas</translation>
    </message>
    <message>
        <source>Line below the menu</source>
        <translation>Línea debajo del menú</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Web Update?</source>
        <translation>¿Actualizar?</translation>
    </message>
    <message>
        <source>Hits</source>
        <translation>Resultados</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Only hits with all of these words in the name or folder are shown</source>
        <translation>Solo se muestran los resultados con todas estas palabras en el nombre o la carpeta</translation>
    </message>
    <message>
        <source>Words that the name or folder must have</source>
        <translation>Palabras que debe tener el nombre o la carpeta</translation>
    </message>
    <message>
        <source>&amp;Search for:</source>
        <translation>&amp;Buscar:</translation>
    </message>
    <message>
        <source>&amp;Match %:</source>
        <translation>&amp;Grado %:</translation>
    </message>
    <message>
        <source>Number of entries found</source>
        <translation>Número de entradas encontradas</translation>
    </message>
    <message>
        <source>Number of entries searched</source>
        <translation>Número de entradas examinadas</translation>
    </message>
    <message>
        <source>Found:</source>
        <translation>Encontradas:</translation>
    </message>
    <message>
        <source>Searched:</source>
        <translation>Examinadas:</translation>
    </message>
    <message>
        <source>Program version</source>
        <translation>Versión del programa</translation>
    </message>
    <message>
        <source>Fi&amp;lter:</source>
        <translation>Fi&amp;ltro:</translation>
    </message>
    <message>
        <source>Number of hits shown</source>
        <translation>Número de resultados mostrados</translation>
    </message>
    <message>
        <source>Main menu</source>
        <translation>Menú principal</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Add/Edit Local Folder To Search List</source>
        <translation>Añadir/editar carpetas &amp;locales de la lista de búsqueda</translation>
    </message>
    <message>
        <source>Add/Edit Offline List files</source>
        <translation>Añadir/editar archivos de lista sin conexión</translation>
    </message>
    <message>
        <source>Rescan Local Search Folders</source>
        <translation>Releer las carpetas de búsqueda locales</translation>
    </message>
    <message>
        <source>Listing &amp;History...</source>
        <translation>&amp;Historial de listas...</translation>
    </message>
    <message>
        <source>&amp;Export Hits...</source>
        <translation>&amp;Exportar resultados...</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Opciones</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>H&amp;its</source>
        <translation>&amp;Resultados</translation>
    </message>
    <message>
        <source>&amp;Peers</source>
        <translation>&amp;Equipos</translation>
    </message>
    <message>
        <source>&amp;Share My Lists</source>
        <translation>&amp;Compartir mis listas</translation>
    </message>
    <message>
        <source>&amp;Get Lists From Peer...</source>
        <translation>&amp;Obtener listas de otro equipo...</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>Program &amp;Usage</source>
        <translation>&amp;Uso del programa</translation>
    </message>
    <message>
        <source>&amp;Release Information</source>
        <translation>&amp;Notas de la versión</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Acerca de</translation>
    </message>
    <message>
        <source>%1 hits are selected. At most %2 can be copied at once.</source>
        <translation>Hay %1 resultados seleccionados. Se pueden copiar %2 como máximo a la vez.</translation>
    </message>
    <message>
        <source>Copying was stopped. The clipboard holds what it held before.</source>
        <translation>Se ha detenido la copia. El portapapeles contiene lo que contenía antes.</translation>
    </message>
    <message>
        <source>Copying was given up, since a new search has replaced the hits. The clipboard holds what it held before.</source>
        <translation>Se ha abandonado la copia, porque una nueva búsqueda ha sustituido los resultados. El portapapeles contiene lo que contenía antes.</translation>
    </message>
    <message>
        <source>For these, the path in the catalogue was copied.</source>
        <translation>De estos se ha copiado la ruta en el catálogo.</translation>
    </message>
    <message>
        <source>doing what the program was started for</source>
        <translation>ejecución de lo que se pidió al iniciar el programa</translation>
    </message>
    <message>
        <source>Table (*.csv)</source>
        <translation>Tabla (*.csv)</translation>
    </message>
    <message>
        <source>Page with its own search box (*.html)</source>
        <translation>Página con su propio cuadro de búsqueda (*.html)</translation>
    </message>
    <message>
        <source>Listing that can be searched (*.txt)</source>
        <translation>Lista en la que se puede buscar (*.txt)</translation>
    </message>
    <message>
        <source>There are no hits to export.</source>
        <translation>No hay resultados que exportar.</translation>
    </message>
    <message>
        <source>Export Hits</source>
        <translation>Exportar resultados</translation>
    </message>
    <message>
        <source>The ending of the name says what is written: .csv, .html or .txt. %1 has none of these.</source>
        <translation>La terminación del nombre dice qué se escribe: .csv, .html o .txt. %1 no tiene ninguna de ellas.</translation>
    </message>
    <message>
        <source>%1 belongs to what is searched. Please choose another name.</source>
        <translation>%1 forma parte de aquello en lo que se busca. Elija otro nombre.</translation>
    </message>
    <message>
        <source>exporting hits to %1</source>
        <translation>exportación de resultados a %1</translation>
    </message>
    <message>
        <source>%1 hits were written to %2.</source>
        <translation>Se han escrito %1 resultados en %2.</translation>
    </message>
    <message>
        <source>%1 of %2 hits</source>
        <translation>%1 de %2 resultados</translation>
    </message>
    <message>
        <source>The export was stopped. Nothing was written.</source>
        <translation>Se ha detenido la exportación. No se ha escrito nada.</translation>
    </message>
    <message>
        <source>The export was given up, since a new search has replaced the hits. Nothing was written.</source>
        <translation>Se ha abandonado la exportación, porque una nueva búsqueda ha sustituido los resultados. No se ha escrito nada.</translation>
    </message>
    <message>
        <source>Hit</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>O&amp;pen</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>Open Containing &amp;Folder</source>
        <translation>Abrir la &amp;carpeta que lo contiene</translation>
    </message>
    <message>
        <source>Preview Image</source>
        <translation>Vista previa de la imagen</translation>
    </message>
    <message>
        <source>Enqueue (Winamp)</source>
        <translation>Poner en cola (Winamp)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>C&amp;opiar</translation>
    </message>
    <message>
        <source>Copy &amp;Names</source>
        <translation>Copiar &amp;nombres</translation>
    </message>
    <message>
        <source>Copy Full P&amp;ath</source>
        <translation>Copiar la &amp;ruta completa</translation>
    </message>
    <message>
        <source>&amp;Export Selected...</source>
        <translation>&amp;Exportar la selección...</translation>
    </message>
    <message>
        <source>&amp;Which Disk?</source>
        <translation>¿&amp;Qué disco?</translation>
    </message>
    <message>
        <source>P&amp;roperties</source>
        <translation>&amp;Propiedades</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>Show in &amp;Folder</source>
        <translation>Mostrar en la &amp;carpeta</translation>
    </message>
    <message>
        <source>At most %1 hits can be dragged at once. Nothing was dragged.</source>
        <translation>Se pueden arrastrar %1 resultados como máximo a la vez. No se ha arrastrado nada.</translation>
    </message>
    <message>
        <source>The picture preview is not available.</source>
        <translation>La vista previa de imágenes no está disponible.</translation>
    </message>
    <message>
        <source>showing &quot;%1&quot;</source>
        <translation>muestra de «%1»</translation>
    </message>
    <message numerus="yes">
        <source>%1 hits are selected. Open all of them?</source>
        <translation>
            <numerusform>Hay %1 resultado seleccionado. ¿Abrirlo?</numerusform>
            <numerusform>Hay %1 resultados seleccionados. ¿Abrirlos todos?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 hits are selected. At most %2 can be opened at once.</source>
        <translation>
            <numerusform>Hay %1 resultado seleccionado. Se pueden abrir %2 como máximo a la vez.</numerusform>
            <numerusform>Hay %1 resultados seleccionados. Se pueden abrir %2 como máximo a la vez.</numerusform>
        </translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>searching for &quot;%1&quot;</source>
        <translation>búsqueda de «%1»</translation>
    </message>
    <message>
        <source>not searched: more than %1 words</source>
        <translation>no se ha buscado: más de %1 palabras</translation>
    </message>
    <message>
        <source>%1 folder was added.</source>
        <translation>Se ha añadido %1 carpeta.</translation>
    </message>
    <message numerus="yes">
        <source>%1 folders were added.</source>
        <translation>
            <numerusform>Se ha añadido %1 carpeta.</numerusform>
            <numerusform>Se han añadido %1 carpetas.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 listing was added.</source>
        <translation>Se ha añadido %1 lista.</translation>
    </message>
    <message numerus="yes">
        <source>%1 listings were added.</source>
        <translation>
            <numerusform>Se ha añadido %1 lista.</numerusform>
            <numerusform>Se han añadido %1 listas.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Catalogue folders of your own</source>
        <translation>&amp;Catalogar carpetas propias</translation>
    </message>
    <message>
        <source>Search &amp;listings that you have</source>
        <translation>Buscar en lis&amp;tas que ya tiene</translation>
    </message>
    <message>
        <source>adding what was dropped</source>
        <translation>adición de lo que se ha soltado</translation>
    </message>
    <message>
        <source>File, %1</source>
        <translation>Archivo, %1</translation>
    </message>
    <message>
        <source>%1 is no folder that can be read.</source>
        <translation>%1 no es una carpeta que se pueda leer.</translation>
    </message>
    <message>
        <source>%1 is not catalogued yet.<byte value="xd"/>
<byte value="xd"/>
Add it to the local search folders, and rescan them?</source>
        <translation>%1 todavía no está catalogada.<byte value="xd"/>
<byte value="xd"/>
¿Añadirla a las carpetas de búsqueda locales y releerlas?</translation>
    </message>
    <message>
        <source>Rescan Local Search Locations?</source>
        <translation>¿Releer los lugares de búsqueda locales?</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Earlier searches</source>
        <translation>Búsquedas anteriores</translation>
    </message>
    <message>
        <source>Earlier searches (Down)</source>
        <translation>Búsquedas anteriores (flecha abajo)</translation>
    </message>
    <message>
        <source>Right adds &quot;%1&quot;</source>
        <translation>La flecha derecha añade «%1»</translation>
    </message>
    <message>
        <source>&amp;Match</source>
        <translation>&amp;Grado</translation>
    </message>
    <message>
        <source>&amp;Volume</source>
        <translation>&amp;Volumen</translation>
    </message>
    <message>
        <source>Fol&amp;der</source>
        <translation>&amp;Carpeta</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Nombre</translation>
    </message>
    <message>
        <source>&amp;Size</source>
        <translation>&amp;Tamaño</translation>
    </message>
    <message>
        <source>D&amp;ate</source>
        <translation>Fec&amp;ha</translation>
    </message>
    <message>
        <source>Sort by %1</source>
        <translation>Ordenar por %1</translation>
    </message>
    <message>
        <source>&amp;Filter Hits</source>
        <translation>&amp;Filtrar resultados</translation>
    </message>
    <message>
        <source>F&amp;ound Order</source>
        <translation>O&amp;rden de hallazgo</translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation>Col&amp;umnas</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Columnas</translation>
    </message>
    <message>
        <source>&amp;Reset Columns</source>
        <translation>&amp;Restablecer las columnas</translation>
    </message>
    <message>
        <source>%1 (descending)</source>
        <translation>%1 (descendente)</translation>
    </message>
    <message>
        <source>%1 (ascending)</source>
        <translation>%1 (ascendente)</translation>
    </message>
    <message>
        <source>%1, with Qt %2</source>
        <translation>%1, con Qt %2</translation>
    </message>
    <message>
        <source>loading the picture %1</source>
        <translation>carga de la imagen %1</translation>
    </message>
    <message>
        <source>The request to stop an earlier rescan is still in force. With it, most folders would be left out of the listings.<byte value="xd"/>
<byte value="xd"/>
Forget the request, and rescan everything?</source>
        <translation>La petición de detener una relectura anterior sigue en vigor. Con ella faltarían en las listas la mayoría de las carpetas.<byte value="xd"/>
<byte value="xd"/>
¿Olvidar la petición y releerlo todo?</translation>
    </message>
    <message>
        <source>restoring the listing %1</source>
        <translation>restauración de la lista %1</translation>
    </message>
    <message>
        <source>updating from the web</source>
        <translation>actualización desde la web</translation>
    </message>
    <message>
        <source>The update was cancelled. It can be started again when the program is started again.</source>
        <translation>Se ha cancelado la actualización. Se puede iniciar de nuevo cuando se vuelva a iniciar el programa.</translation>
    </message>
    <message>
        <source>To use the web update, fill in the web server and the archive in File, Options, and start the program again.</source>
        <translation>Para usar la actualización web, indique el servidor web y el archivo comprimido en Archivo, Opciones, y vuelva a iniciar el programa.</translation>
    </message>
    <message>
        <source>Get Lists From Peer</source>
        <translation>Obtener listas de otro equipo</translation>
    </message>
    <message>
        <source>&amp;Peer (host or host:port):</source>
        <translation>&amp;Equipo (nombre o nombre:puerto):</translation>
    </message>
    <message>
        <source>saving the settings</source>
        <translation>guardar los ajustes</translation>
    </message>
    <message>
        <source>saving the window&apos;s place</source>
        <translation>guardar el lugar de la ventana</translation>
    </message>
    <message>
        <source>saving the online sources</source>
        <translation>guardar las fuentes en línea</translation>
    </message>
    <message>
        <source>saving the offline sources</source>
        <translation>guardar las fuentes sin conexión</translation>
    </message>
    <message>
        <source>Statup error: %1 %2</source>
        <translation>Error al iniciar: %1&#xa0;%2</translation>
    </message>
    <message>
        <source>Could not find file specified on command line. Using default file.</source>
        <translation>No se ha encontrado el archivo indicado en la línea de órdenes. Se usa el archivo predeterminado.</translation>
    </message>
    <message>
        <source>%1 listing</source>
        <translation>%1 lista</translation>
    </message>
    <message numerus="yes">
        <source>%1 listings</source>
        <translation>
            <numerusform>%1 lista</numerusform>
            <numerusform>%1 listas</numerusform>
        </translation>
    </message>
    <message>
        <source>stopped after %1 of %2</source>
        <translation>detenida tras %1 de %2</translation>
    </message>
    <message>
        <source>%1 listing missing</source>
        <translation>falta %1 lista</translation>
    </message>
    <message numerus="yes">
        <source>%1 listings missing</source>
        <translation>
            <numerusform>falta %1 lista</numerusform>
            <numerusform>faltan %1 listas</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was searched: %1.</source>
        <translation>No se ha buscado en nada: %1.</translation>
    </message>
    <message>
        <source>No file found: %1.</source>
        <translation>No se ha encontrado ningún archivo: %1.</translation>
    </message>
    <message>
        <source>No file found in %1%2.</source>
        <translation>No se ha encontrado ningún archivo en %1%2.</translation>
    </message>
    <message>
        <source>all %1 of them</source>
        <translation>todas, las %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>More than %1% of the words means %2; with %3, %4 is enough.</source>
        <translation>Más del %1&#xa0;% de las palabras significa %2; con %3 bastan %4.</translation>
    </message>
    <message>
        <source>%1 hit</source>
        <translation>%1 resultado</translation>
    </message>
    <message numerus="yes">
        <source>%1 hits</source>
        <translation>
            <numerusform>%1 resultado</numerusform>
            <numerusform>%1 resultados</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 shown</source>
        <translation>%1 de %2 mostrados</translation>
    </message>
    <message>
        <source>%1 selected</source>
        <translation>seleccionados: %1</translation>
    </message>
    <message>
        <source>without the main data file offline lists are not searched</source>
        <translation>sin el archivo de datos principal no se busca en las listas sin conexión</translation>
    </message>
    <message>
        <source>1 entry</source>
        <translation>1 entrada</translation>
    </message>
    <message numerus="yes">
        <source>%1 entries</source>
        <translation>
            <numerusform>%1 entrada</numerusform>
            <numerusform>%1 entradas</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 new</source>
        <translation>%1 más</translation>
    </message>
    <message>
        <source>%1 gone</source>
        <translation>%1 menos</translation>
    </message>
    <message>
        <source>%1 drive missing</source>
        <translation>falta %1 unidad</translation>
    </message>
    <message numerus="yes">
        <source>%1 drives missing</source>
        <translation>
            <numerusform>falta %1 unidad</numerusform>
            <numerusform>faltan %1 unidades</numerusform>
        </translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>detenida</translation>
    </message>
    <message>
        <source>%1 of %2 copied so far; Esc stops</source>
        <translation>copiados %1 de %2 hasta ahora; Esc detiene</translation>
    </message>
    <message>
        <source>%1 were copied.</source>
        <translation>Copiado: %1.</translation>
    </message>
    <message>
        <source>%1 of %2 could not be found on a connected drive.</source>
        <translation>%1 de %2 no se han encontrado en ninguna unidad conectada.</translation>
    </message>
    <message>
        <source>%1 are no longer selected: they are scattered too widely now</source>
        <translation>Ya sin seleccionar: %1, ahora demasiado dispersos</translation>
    </message>
    <message>
        <source>No file holds more than 100% of the words; 99 asks for all of them.</source>
        <translation>Ningún archivo contiene más del 100&#xa0;% de las palabras; 99 las pide todas.</translation>
    </message>
    <message>
        <source>Without the main data file the offline lists are not searched.</source>
        <translation>Sin el archivo de datos principal no se busca en las listas sin conexión.</translation>
    </message>
    <message>
        <source>Folders are written with \: try %1</source>
        <translation>Las carpetas se escriben con \: pruebe %1</translation>
    </message>
    <message>
        <source>Version %1.%2.%3</source>
        <translation>Versión %1.%2.%3</translation>
    </message>
    <message>
        <source>Text file / folder list searching utility</source>
        <translation>Busca en listas de textos, archivos y carpetas</translation>
    </message>
    <message>
        <source>its content cannot be unpacked</source>
        <translation>su contenido no se puede descomprimir</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in the archive is damaged: %2.</source>
        <translation>«%1», en el archivo comprimido, está dañado: %2.</translation>
    </message>
    <message>
        <source>it is longer than it should be</source>
        <translation>es más largo de lo que debería</translation>
    </message>
    <message>
        <source>it is shorter than it should be</source>
        <translation>es más corto de lo que debería</translation>
    </message>
    <message>
        <source>its checksum is wrong</source>
        <translation>su suma de comprobación es incorrecta</translation>
    </message>
    <message>
        <source>it cannot be read</source>
        <translation>no se puede leer</translation>
    </message>
    <message>
        <source>Nothing was unpacked.</source>
        <translation>No se ha descomprimido nada.</translation>
    </message>
    <message>
        <source>The archive has an entry whose name %1: &quot;%2&quot;.</source>
        <translation>El archivo comprimido tiene una entrada cuyo nombre %1: «%2».</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>está vacío</translation>
    </message>
    <message>
        <source>holds control characters</source>
        <translation>contiene caracteres de control</translation>
    </message>
    <message>
        <source>is an absolute path</source>
        <translation>es una ruta absoluta</translation>
    </message>
    <message>
        <source>leads out of the folder</source>
        <translation>lleva fuera de la carpeta</translation>
    </message>
    <message>
        <source>has a drive</source>
        <translation>nombra una unidad</translation>
    </message>
    <message>
        <source>is too long</source>
        <translation>es demasiado largo</translation>
    </message>
    <message>
        <source>The archive has an entry that is more than %1 folders deep: &quot;%2&quot;.</source>
        <translation>El archivo comprimido tiene una entrada a más de %1 carpetas de profundidad: «%2».</translation>
    </message>
    <message>
        <source>The archive holds a link: &quot;%1&quot;.</source>
        <translation>El archivo comprimido contiene un enlace: «%1».</translation>
    </message>
    <message>
        <source>The archive holds a device or a socket: &quot;%1&quot;.</source>
        <translation>El archivo comprimido contiene un dispositivo o un socket: «%1».</translation>
    </message>
    <message>
        <source>The archive holds a folder with content: &quot;%1&quot;.</source>
        <translation>El archivo comprimido contiene una carpeta con contenido: «%1».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in the archive is encrypted.</source>
        <translation>«%1», en el archivo comprimido, está cifrado.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in the archive is packed in a way that this program does not know.</source>
        <translation>«%1», en el archivo comprimido, está comprimido de un modo que este programa no conoce.</translation>
    </message>
    <message>
        <source>In the archive a file and a folder have the same name: &quot;%1&quot;.</source>
        <translation>En el archivo comprimido, un archivo y una carpeta tienen el mismo nombre: «%1».</translation>
    </message>
    <message>
        <source>The archive holds two entries of the same name: &quot;%1&quot;.</source>
        <translation>El archivo comprimido contiene dos entradas con el mismo nombre: «%1».</translation>
    </message>
    <message>
        <source>The archive holds more than %1 files and folders.</source>
        <translation>El archivo comprimido contiene más de %1 archivos y carpetas.</translation>
    </message>
    <message>
        <source>The archive would unpack to more than %1.</source>
        <translation>El archivo comprimido ocuparía descomprimido más de %1.</translation>
    </message>
    <message>
        <source>The entries of the archive overlap; it was made to do harm.</source>
        <translation>Las entradas del archivo comprimido se solapan; se hizo para causar daño.</translation>
    </message>
    <message>
        <source>The archive holds more than %1 entries.</source>
        <translation>El archivo comprimido contiene más de %1 entradas.</translation>
    </message>
    <message>
        <source>The archive has a file without a name: &quot;%1&quot;.</source>
        <translation>El archivo comprimido tiene un archivo sin nombre: «%1».</translation>
    </message>
    <message>
        <source>The archive &quot;%1&quot; is damaged: its parts contradict each other.</source>
        <translation>El archivo comprimido «%1» está dañado: sus partes se contradicen.</translation>
    </message>
    <message>
        <source>The archive &quot;%1&quot; holds two entries of the same name.</source>
        <translation>El archivo comprimido «%1» contiene dos entradas con el mismo nombre.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no zip archive, or its end is missing.</source>
        <translation>«%1» no es un archivo zip, o le falta el final.</translation>
    </message>
    <message>
        <source>The archive &quot;%1&quot; holds more than %2 entries.</source>
        <translation>El archivo comprimido «%1» contiene más de %2 entradas.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is only a part of an archive of several files.</source>
        <translation>«%1» es solo una parte de un archivo comprimido en varios archivos.</translation>
    </message>
    <message>
        <source>The archive &quot;%1&quot; cannot be read.</source>
        <translation>El archivo comprimido «%1» no se puede leer.</translation>
    </message>
    <message>
        <source>One file before it was unpacked, nothing else was changed.</source>
        <translation>Se ha descomprimido un archivo anterior; no ha cambiado nada más.</translation>
    </message>
    <message numerus="yes">
        <source>The %1 files before it were unpacked, nothing else was changed.</source>
        <translation>
            <numerusform>Se ha descomprimido %1 archivo anterior; no ha cambiado nada más.</numerusform>
            <numerusform>Se han descomprimido los %1 archivos anteriores; no ha cambiado nada más.</numerusform>
        </translation>
    </message>
    <message>
        <source>the list could not be written to standard output</source>
        <translation>la lista no se ha podido escribir en la salida estándar</translation>
    </message>
    <message>
        <source>%1 could not be removed</source>
        <translation>%1 no se ha podido eliminar</translation>
    </message>
    <message>
        <source>Write neither counts nor progress to standard error</source>
        <translation>No escribir recuentos ni progreso en stderr</translation>
    </message>
    <message>
        <source>Write JSON, an object a line</source>
        <translation>Escribir JSON, un objeto por línea</translation>
    </message>
    <message>
        <source>Find files in listings by words and a match percentage</source>
        <translation>Buscar archivos en listas por palabras y grado</translation>
    </message>
    <message>
        <source>Hits must match more than this percentage; 50</source>
        <translation>Los resultados deben superar este porcentaje; 50</translation>
    </message>
    <message>
        <source>tsv (default), csv or json</source>
        <translation>tsv (predeterminado), csv o json</translation>
    </message>
    <message>
        <source>Of match,volume,folder,name,path,size,modified,listing,words</source>
        <translation>De match,volume,folder,name,path,size,modified,listing,words</translation>
    </message>
    <message>
        <source>Start with the titles of the columns</source>
        <translation>Empezar con los títulos de las columnas</translation>
    </message>
    <message>
        <source>Leave them out of csv with --fields, which starts with them</source>
        <translation>Quitarlos del csv con --fields, que los lleva</translation>
    </message>
    <message>
        <source>End rows with NUL instead of a line feed</source>
        <translation>Terminar las filas con NUL y no con un salto de línea</translation>
    </message>
    <message>
        <source>Write no more than N hits</source>
        <translation>No escribir más de N resultados</translation>
    </message>
    <message>
        <source>match, volume, folder, name, size or modified</source>
        <translation>match, volume, folder, name, size o modified</translation>
    </message>
    <message>
        <source>The other way round, with --sort</source>
        <translation>En el orden inverso, con --sort</translation>
    </message>
    <message>
        <source>Highlight the words: auto (default), always or never</source>
        <translation>Resaltar palabras: auto (predeterminado), always o never</translation>
    </message>
    <message>
        <source>Write only the number of hits</source>
        <translation>Escribir solo el número de resultados</translation>
    </message>
    <message>
        <source>Neither read nor write the search cache</source>
        <translation>No leer ni escribir la caché de búsqueda</translation>
    </message>
    <message>
        <source>Search your own sources</source>
        <translation>Buscar en las fuentes propias</translation>
    </message>
    <message>
        <source>Hand the files on</source>
        <translation>Pasar los archivos a otro programa</translation>
    </message>
    <message>
        <source>A listing from a pipe</source>
        <translation>Una lista que llega por una tubería</translation>
    </message>
    <message>
        <source>Writes one row for each entry of the listings that matches TEXT by more than the wanted percentage, in the order in which they are found. TEXT is one argument: words with blanks between, in any order, of which each is looked for anywhere in folder or name, whatever its case. The match is the share of the words that were found. Without a LISTING, the user&apos;s own sources are searched, as the window does. A LISTING may be a pipe; - is standard input.</source>
        <translation>Escribe una fila por cada entrada de las listas que coincide con TEXT en más del porcentaje deseado, en el orden en que se encuentran. TEXT es un solo argumento: palabras separadas por espacios, en cualquier orden; cada una se busca en cualquier lugar de la carpeta o del nombre, en mayúsculas o minúsculas. El grado es la parte de las palabras que se ha encontrado. Sin LISTING se busca en las fuentes del usuario, como en la ventana. LISTING puede ser una tubería; - es la entrada estándar.</translation>
    </message>
    <message>
        <source>In tsv and csv, the columns are those of the window unless --fields chooses others: the match as &quot;100%&quot;, volume, folder, name, the size in megabytes and the date, as the locale writes them. Json has all fields. Tsv has blanks in place of control characters, but where -0 is given and there is one column, texts are left as they are. On a terminal, no control character of a name gets through.</source>
        <translation>En tsv y csv las columnas son las de la ventana, salvo que --fields elija otras: el grado como «100%», el volumen, la carpeta, el nombre, el tamaño en megabytes y la fecha, como los escribe la configuración regional. Json tiene todos los campos. Tsv tiene espacios en lugar de los caracteres de control; pero con -0 y una sola columna los textos se dejan como están. En un terminal no pasa ningún carácter de control de un nombre.</translation>
    </message>
    <message>
        <source>The last line on standard error says how many entries were found and searched. With --sort nothing is written before all is searched.</source>
        <translation>La última línea de la salida de errores dice cuántas entradas se han encontrado y examinado. Con --sort no se escribe nada antes de haberlo examinado todo.</translation>
    </message>
    <message>
        <source>Write the listing of a folder</source>
        <translation>Escribir la lista de una carpeta</translation>
    </message>
    <message>
        <source>The volume&apos;s name in the listing; default: the folder&apos;s name</source>
        <translation>Nombre del volumen en la lista; si no, el de la carpeta</translation>
    </message>
    <message>
        <source>List folders only</source>
        <translation>Listar solo carpetas</translation>
    </message>
    <message>
        <source>The listing&apos;s file; default, and -: standard output</source>
        <translation>Archivo de la lista; si no, y con -: la salida estándar</translation>
    </message>
    <message>
        <source>Catalogue a folder</source>
        <translation>Catalogar una carpeta</translation>
    </message>
    <message>
        <source>Name it, and pack it</source>
        <translation>Darle un nombre y comprimirla</translation>
    </message>
    <message>
        <source>Catalogues a folder with everything below it. A file is put in place when it is whole; until then, and when anything goes wrong, the one that was there before stays. Names that could not be read are reported on standard error.</source>
        <translation>Cataloga una carpeta con todo lo que hay debajo. Un archivo se pone en su sitio cuando está completo; hasta entonces, y cuando algo va mal, permanece el que había. Los nombres que no se han podido leer se comunican en la salida de errores.</translation>
    </message>
    <message>
        <source>Renew the listings of your own folders, or of those named</source>
        <translation>Renovar las listas de todas sus carpetas, o de algunas</translation>
    </message>
    <message>
        <source>Write what was done to standard output, as JSON</source>
        <translation>Escribir lo hecho en la salida estándar, como JSON</translation>
    </message>
    <message>
        <source>Renew all of them</source>
        <translation>Renovarlas todas</translation>
    </message>
    <message>
        <source>Only these</source>
        <translation>Solo estas</translation>
    </message>
    <message>
        <source>A NAME is the description of a folder. A folder that is not there, such as an unplugged drive, keeps its listing. What a listing held before is kept too; see history.</source>
        <translation>NAME es la descripción de una carpeta. Una carpeta que no está, por ejemplo en una unidad desconectada, conserva su lista. También se conserva lo que una lista contenía antes; véase history.</translation>
    </message>
    <message>
        <source>Show folders and offline lists</source>
        <translation>Mostrar las carpetas y las listas sin conexión</translation>
    </message>
    <message>
        <source>Add a folder and an offline list</source>
        <translation>Añadir una carpeta y una lista sin conexión</translation>
    </message>
    <message>
        <source>Take one out of its list</source>
        <translation>Sacar una de su lista</translation>
    </message>
    <message>
        <source>Have one searched first</source>
        <translation>Hacer que se busque primero en una</translation>
    </message>
    <message>
        <source>Shows a row for each source, in the order in which they are searched: &quot;folder&quot;, &quot;main&quot; or &quot;offline&quot;, its description, its path, the path of its listing, and whether the source is &quot;there&quot; or &quot;gone&quot;, parted by tabs. The last line, on standard error, names the folder in which listings and lists are kept.</source>
        <translation>Muestra una fila por cada fuente, en el orden en que se busca en ellas: «folder», «main» u «offline», su descripción, su ruta, la ruta de su lista y si la fuente está («there») o no está («gone»), separados por tabuladores. La última línea, en la salida de errores, nombra la carpeta en la que se guardan las listas y las listas de fuentes.</translation>
    </message>
    <message>
        <source>A window that is open shows changes when it is next started. Where it has changed the same list meanwhile, neither is lost: one of them is kept beside the other, and a message says so.</source>
        <translation>Una ventana abierta muestra los cambios la próxima vez que se inicia. Si entretanto ha cambiado la misma lista, no se pierde ninguna: una se conserva junto a la otra, y un mensaje lo dice.</translation>
    </message>
    <message>
        <source>Add folders of your own, or listings as offline lists</source>
        <translation>Añadir carpetas propias, o listas como listas sin conexión</translation>
    </message>
    <message>
        <source>The description of one source; default: the folder&apos;s name</source>
        <translation>Descripción de una fuente; si no, el nombre de la carpeta</translation>
    </message>
    <message>
        <source>A folder</source>
        <translation>Una carpeta</translation>
    </message>
    <message>
        <source>An offline list</source>
        <translation>Una lista sin conexión</translation>
    </message>
    <message>
        <source>All of the paths are added, or none. A folder is listed by the next refresh.</source>
        <translation>Se añaden todas las rutas o ninguna. Una carpeta se lista con el siguiente refresh.</translation>
    </message>
    <message>
        <source>Take sources out of their lists</source>
        <translation>Sacar fuentes de sus listas</translation>
    </message>
    <message>
        <source>By its description</source>
        <translation>Por su descripción</translation>
    </message>
    <message>
        <source>By its path</source>
        <translation>Por su ruta</translation>
    </message>
    <message>
        <source>A NAME is a description or a path. Neither folder nor listing is touched.</source>
        <translation>NAME es una descripción o una ruta. No se tocan ni la carpeta ni la lista.</translation>
    </message>
    <message>
        <source>Give a source another place in its list</source>
        <translation>Dar a una fuente otro lugar en su lista</translation>
    </message>
    <message>
        <source>Search it before the others</source>
        <translation>Buscar en ella antes que en las demás</translation>
    </message>
    <message>
        <source>A NAME is a description or a path, PLACE a number from 1. Sources are searched in this order.</source>
        <translation>NAME es una descripción o una ruta, PLACE un número a partir de 1. Se busca en las fuentes en este orden.</translation>
    </message>
    <message>
        <source>Show the earlier versions of listings, or restore one</source>
        <translation>Mostrar versiones anteriores de listas, o restaurar una</translation>
    </message>
    <message>
        <source>Put the newest complete version in the listing&apos;s place</source>
        <translation>Poner la última versión completa en lugar de la lista</translation>
    </message>
    <message>
        <source>Restore this version instead</source>
        <translation>Restaurar esta versión en su lugar</translation>
    </message>
    <message>
        <source>Show what there is</source>
        <translation>Mostrar lo que hay</translation>
    </message>
    <message>
        <source>Bring that version back</source>
        <translation>Recuperar esa versión</translation>
    </message>
    <message>
        <source>Each row holds the listing, the number of the version, when the listing was made, its entries, its bytes, and &quot;complete&quot;, &quot;incomplete&quot; or &quot;damaged&quot;, parted by tabs, newest first. LISTING is the description of a folder, or the name or path of a listing.</source>
        <translation>Cada fila contiene la lista, el número de la versión, cuándo se hizo la lista, sus entradas, sus bytes y «complete» (completa), «incomplete» (incompleta) o «damaged» (dañada), separados por tabuladores, la más reciente primero. LISTING es la descripción de una carpeta, o el nombre o la ruta de una lista.</translation>
    </message>
    <message>
        <source>Show what is kept for later searches, or remove it</source>
        <translation>Mostrar o quitar lo que se guarda para otras búsquedas</translation>
    </message>
    <message>
        <source>Remove it; it is made again when it is needed</source>
        <translation>Quitarlo; se hace de nuevo cuando hace falta</translation>
    </message>
    <message>
        <source>Only what belongs to no listing any more</source>
        <translation>Solo lo que ya no pertenece a ninguna lista</translation>
    </message>
    <message>
        <source>Show it</source>
        <translation>Mostrarlo</translation>
    </message>
    <message>
        <source>Tidy up</source>
        <translation>Hacer limpieza</translation>
    </message>
    <message>
        <source>Each row holds a size in bytes and the listing it is for, parted by a tab, and a third column &quot;(gone)&quot; where that listing is not there any more. What no search can use is marked as &quot;(damaged)&quot;, &quot;(unfinished)&quot; or &quot;(of an earlier version)&quot;.</source>
        <translation>Cada fila contiene un tamaño en bytes y la lista a la que pertenece, separados por un tabulador, y una tercera columna «(gone)» si esa lista ya no está. Lo que ninguna búsqueda puede usar lleva la marca «(damaged)» (dañado), «(unfinished)» (sin terminar) u «(of an earlier version)» (de una versión anterior).</translation>
    </message>
    <message>
        <source>Show this help, or that of a command behind it</source>
        <translation>Mostrar esta ayuda, o la de una orden que la siga</translation>
    </message>
    <message>
        <source>Show the version</source>
        <translation>Mostrar la versión</translation>
    </message>
    <message>
        <source>Write the completion for bash, zsh or fish</source>
        <translation>Escribir el completado para bash, zsh o fish</translation>
    </message>
    <message>
        <source>Write the manual page</source>
        <translation>Escribir la página de manual</translation>
    </message>
    <message>
        <source>FIELDS</source>
        <translation>CAMPOS</translation>
    </message>
    <message>
        <source>What --fields of find chooses from, and the keys of its JSON:</source>
        <translation>De lo que elige --fields de find, y las claves de su JSON:</translation>
    </message>
    <message>
        <source>The match percentage, a number.</source>
        <translation>El grado en tanto por ciento, un número.</translation>
    </message>
    <message>
        <source>As the listing has them, the folder with backslashes.</source>
        <translation>Como los tiene la lista, la carpeta con barras inversas.</translation>
    </message>
    <message>
        <source>The path of the file itself, where the hit is from a folder of your own; empty for others, and where the listing does not hold the whole name and the file is not there. With --fields path alone, hits without a path are left out and counted on standard error.</source>
        <translation>La ruta del propio archivo, si el resultado es de una carpeta propia; vacía para los demás, y donde la lista no contiene el nombre entero y el archivo no está. Solo con --fields path, los resultados sin ruta se omiten y se cuentan en la salida de errores.</translation>
    </message>
    <message>
        <source>Bytes.</source>
        <translation>Bytes.</translation>
    </message>
    <message>
        <source>As in 2004-01-15T10:20:30, in the time zone of the machine that made the listing.</source>
        <translation>Como en 2004-01-15T10:20:30, en la zona horaria del equipo que hizo la lista.</translation>
    </message>
    <message>
        <source>The path of the listing, as it was given.</source>
        <translation>La ruta de la lista, tal como se dio.</translation>
    </message>
    <message>
        <source>The words that were found, as they were searched for; in JSON an array.</source>
        <translation>Las palabras encontradas, tal como se buscaron; en JSON, una serie.</translation>
    </message>
    <message>
        <source>In JSON only, and only where it is true: the entry has no size and date of its own in the listing, and those shown are of an earlier line. Where there are none at all, both keys are left out.</source>
        <translation>Solo en JSON, y solo si es cierto: la entrada no tiene tamaño ni fecha propios en la lista, y los que se muestran son de una línea anterior. Donde no hay ninguno, faltan ambas claves.</translation>
    </message>
    <message>
        <source>EXIT STATUS</source>
        <translation>ESTADO DE SALIDA</translation>
    </message>
    <message>
        <source>Something went wrong, or the command line was not understood; a sentence on standard error says what. What could be done was done. index and refresh: also when a folder holds more names than a listing takes.</source>
        <translation>Algo fue mal, o no se entendió la línea de órdenes; una frase en la salida de errores dice qué. Se hizo lo que se pudo hacer. index y refresh: también cuando una carpeta contiene más nombres de los que admite una lista.</translation>
    </message>
    <message>
        <source>An interrupt or a termination ended it. Complete rows and files stay.</source>
        <translation>La terminó una interrupción o una petición de fin. Las filas y los archivos completos permanecen.</translation>
    </message>
    <message>
        <source>FILES</source>
        <translation>ARCHIVOS</translation>
    </message>
    <message>
        <source>The settings.</source>
        <translation>Los ajustes.</translation>
    </message>
    <message>
        <source>The search cache.</source>
        <translation>La caché de búsqueda.</translation>
    </message>
    <message>
        <source>ENVIRONMENT</source>
        <translation>ENTORNO</translation>
    </message>
    <message>
        <source>If it is set and not empty, find colours nothing unless --color always is given.</source>
        <translation>Si está definida y no está vacía, find no colorea nada, salvo con --color always.</translation>
    </message>
    <message>
        <source>How sizes and dates are written, and read in listings.</source>
        <translation>Cómo se escriben los tamaños y las fechas, y cómo se leen en las listas.</translation>
    </message>
    <message>
        <source>The settings file to use.</source>
        <translation>El archivo de ajustes que se usa.</translation>
    </message>
    <message>
        <source>See FILES.</source>
        <translation>Véase ARCHIVOS.</translation>
    </message>
    <message>
        <source>the value of --match comes without &quot;%&quot;. Hits must match more than it: --match 99 finds what has all the words</source>
        <translation>el valor de --match va sin «%». Los resultados deben superarlo: --match 99 encuentra lo que tiene todas las palabras</translation>
    </message>
    <message>
        <source>the value of --match is a percentage from 1 to 100, not &quot;%1&quot;</source>
        <translation>el valor de --match es un porcentaje de 1 a 100, no «%1»</translation>
    </message>
    <message>
        <source>the search text is empty</source>
        <translation>el texto de búsqueda está vacío</translation>
    </message>
    <message>
        <source>the search text has more than %1 words</source>
        <translation>el texto de búsqueda tiene más de %1 palabras</translation>
    </message>
    <message>
        <source>%1 found, %2 searched</source>
        <translation>%1 encontradas, %2 examinadas</translation>
    </message>
    <message numerus="yes">
        <source>%1 hits could not be read from the search cache. Please try again</source>
        <translation>
            <numerusform>%1 resultado no se ha podido leer de la caché de búsqueda. Inténtelo de nuevo</numerusform>
            <numerusform>%1 resultados no se han podido leer de la caché de búsqueda. Inténtelo de nuevo</numerusform>
        </translation>
    </message>
    <message>
        <source>the hits could not all be written to standard output</source>
        <translation>no todos los resultados se han podido escribir en la salida estándar</translation>
    </message>
    <message numerus="yes">
        <source>%1 hits were left out, since they are from no folder of your own or their files are not there</source>
        <translation>
            <numerusform>se ha omitido %1 resultado, porque no es de una carpeta propia o su archivo no está</numerusform>
            <numerusform>se han omitido %1 resultados, porque no son de una carpeta propia o sus archivos no están</numerusform>
        </translation>
    </message>
    <message>
        <source>nothing matches more than 100%; --match 99 finds what has all the words</source>
        <translation>nada supera el 100%; --match 99 encuentra lo que tiene todas las palabras</translation>
    </message>
    <message>
        <source>words to find come in one argument: &quot;%1 %2&quot;</source>
        <translation>las palabras que se buscan van en un solo argumento: &quot;%1&#xa0;%2&quot;</translation>
    </message>
    <message>
        <source>there is no earlier version of %1</source>
        <translation>no hay ninguna versión anterior de %1</translation>
    </message>
    <message>
        <source>name the listing that is to be restored</source>
        <translation>nombre la lista que hay que restaurar</translation>
    </message>
    <message>
        <source>standard output</source>
        <translation>salida estándar</translation>
    </message>
    <message>
        <source>there is no complete earlier version of %1</source>
        <translation>no hay ninguna versión anterior completa de %1</translation>
    </message>
    <message>
        <source>%1 is version %2 again, with %3 entries</source>
        <translation>%1 es otra vez la versión %2, con %3 entradas</translation>
    </message>
    <message>
        <source>there is no folder of your own with the description &quot;%1&quot;; quorvin-cli sources shows them</source>
        <translation>no hay ninguna carpeta propia con la descripción «%1»; quorvin-cli sources las muestra</translation>
    </message>
    <message>
        <source>the outcome could not be written to standard output</source>
        <translation>el resultado no se ha podido escribir en la salida estándar</translation>
    </message>
    <message>
        <source>the text could not be written to standard output</source>
        <translation>el texto no se ha podido escribir en la salida estándar</translation>
    </message>
    <message>
        <source>there is no completion for &quot;%1&quot;; the shells are bash, zsh and fish</source>
        <translation>no hay completado para «%1»; los intérpretes son bash, zsh y fish</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <translation>a %1 le falta un valor</translation>
    </message>
    <message>
        <source>the options could not be understood</source>
        <translation>no se han entendido las opciones</translation>
    </message>
    <message>
        <source>find needs the words to find, in one argument</source>
        <translation>find necesita las palabras que se buscan, en un solo argumento</translation>
    </message>
    <message>
        <source>index needs the folder to list</source>
        <translation>index necesita la carpeta que hay que listar</translation>
    </message>
    <message>
        <source>sources add needs a folder or a listing</source>
        <translation>sources add necesita una carpeta o una lista</translation>
    </message>
    <message>
        <source>%1 needs the description or the path of a source</source>
        <translation>%1 necesita la descripción o la ruta de una fuente</translation>
    </message>
    <message>
        <source>there is no option &quot;%1&quot;</source>
        <translation>no hay ninguna opción «%1»</translation>
    </message>
    <message>
        <source>there is no command &quot;%1&quot;</source>
        <translation>no hay ninguna orden «%1»</translation>
    </message>
    <message>
        <source>there is no command</source>
        <translation>falta una orden</translation>
    </message>
    <message>
        <source>%1 does not know what to do with &quot;%2&quot;</source>
        <translation>%1 no sabe qué hacer con «%2»</translation>
    </message>
    <message>
        <source>words that start with a dash go behind --</source>
        <translation>las palabras que empiezan por un guion van detrás de --</translation>
    </message>
    <message>
        <source>%1 has no option &quot;%2&quot;</source>
        <translation>%1 no tiene ninguna opción «%2»</translation>
    </message>
    <message>
        <source>there is no format &quot;%1&quot;; the formats are tsv, csv and json</source>
        <translation>no hay ningún formato «%1»; los formatos son tsv, csv y json</translation>
    </message>
    <message>
        <source>there is no field &quot;%1&quot;; the fields are %2</source>
        <translation>no hay ningún campo «%1»; los campos son %2</translation>
    </message>
    <message>
        <source>the value of --limit is a number of hits, not &quot;%1&quot;</source>
        <translation>el valor de --limit es un número de resultados, no «%1»</translation>
    </message>
    <message>
        <source>hits cannot be sorted by &quot;%1&quot;, only by match, volume, folder, name, size or modified</source>
        <translation>los resultados no se pueden ordenar por «%1», solo por match, volume, folder, name, size o modified</translation>
    </message>
    <message>
        <source>the value of --color is auto, always or never, not &quot;%1&quot;</source>
        <translation>el valor de --color es auto, always o never, no «%1»</translation>
    </message>
    <message>
        <source>--reverse goes with --sort</source>
        <translation>--reverse va con --sort</translation>
    </message>
    <message>
        <source>history does not know what to do with &quot;%1&quot;</source>
        <translation>history no sabe qué hacer con «%1»</translation>
    </message>
    <message>
        <source>--number goes with --restore</source>
        <translation>--number va con --restore</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number of a version</source>
        <translation>«%1» no es un número de versión</translation>
    </message>
    <message>
        <source>--name is for one source at a time</source>
        <translation>--name es para una sola fuente</translation>
    </message>
    <message>
        <source>sources move needs a source and its place</source>
        <translation>sources move necesita una fuente y su lugar</translation>
    </message>
    <message>
        <source>the place of sources move is a number from 1</source>
        <translation>el lugar de sources move es un número a partir de 1</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>no hay memoria suficiente</translation>
    </message>
    <message>
        <source>a file of the search cache was cut while it was searched. Please try again.</source>
        <translation>un archivo de la caché de búsqueda se acortó mientras se buscaba en él. Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The data folder is %1</source>
        <translation>La carpeta de datos es %1</translation>
    </message>
    <message>
        <source>%1 is neither a folder nor a listing file</source>
        <translation>%1 no es ni una carpeta ni un archivo de lista</translation>
    </message>
    <message>
        <source>the list has places 1 to %1</source>
        <translation>la lista tiene los lugares 1 a %1</translation>
    </message>
    <message>
        <source>there is no source &quot;%1&quot;; quorvin-cli sources shows them</source>
        <translation>no hay ninguna fuente «%1»; quorvin-cli sources las muestra</translation>
    </message>
    <message>
        <source>%1 sources are called &quot;%2&quot;; please name the path of one</source>
        <translation>%1 fuentes se llaman «%2»; dé la ruta de una de ellas</translation>
    </message>
    <message>
        <source>quorvin-cli refresh makes the listing</source>
        <translation>quorvin-cli refresh hace la lista</translation>
    </message>
    <message>
        <source>options</source>
        <translation>opciones</translation>
    </message>
    <message>
        <source>EXAMPLES</source>
        <translation>EJEMPLOS</translation>
    </message>
    <message>
        <source>quorvin-cli [option] COMMAND ...</source>
        <translation>quorvin-cli [opción] ORDEN ...</translation>
    </message>
    <message>
        <source>Quorvin Utility in the terminal: search and make catalogues of disks.</source>
        <translation>Quorvin Utility en el terminal: hacer catálogos de discos y buscar en ellos.</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Órdenes:</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Opciones:</translation>
    </message>
    <message>
        <source>quorvin-cli COMMAND --help says more of each; man quorvin-cli says all.</source>
        <translation>quorvin-cli ORDEN --help dice más de cada una; man quorvin-cli lo dice todo.</translation>
    </message>
    <message>
        <source>Examples:</source>
        <translation>Ejemplos:</translation>
    </message>
    <message>
        <source>User commands</source>
        <translation>Órdenes de usuario</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOMBRE</translation>
    </message>
    <message>
        <source>search and make listings of disks, drives and shares</source>
        <translation>hacer listas de discos, unidades y recursos compartidos, y buscar en ellas</translation>
    </message>
    <message>
        <source>SYNOPSIS</source>
        <translation>SINOPSIS</translation>
    </message>
    <message>
        <source>DESCRIPTION</source>
        <translation>DESCRIPCIÓN</translation>
    </message>
    <message>
        <source>Finds files in listings, the catalogues of disks and folders, and makes such listings.</source>
        <translation>Encuentra archivos en listas, los catálogos de discos y carpetas, y hace esas listas.</translation>
    </message>
    <message>
        <source>It uses the same settings and folders as the window,</source>
        <translation>Usa los mismos ajustes y carpetas que la ventana,</translation>
    </message>
    <message>
        <source>OPTIONS</source>
        <translation>OPCIONES</translation>
    </message>
    <message>
        <source>COMMANDS</source>
        <translation>ÓRDENES</translation>
    </message>
    <message>
        <source>SEE ALSO</source>
        <translation>VÉASE TAMBIÉN</translation>
    </message>
    <message>
        <source>Choose Folders to Catalogue</source>
        <translation>Elegir carpetas para catalogar</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>Local Data Folder:</source>
        <translation>Carpeta de datos local:</translation>
    </message>
    <message>
        <source>Browse for the local data folder</source>
        <translation>Elegir la carpeta de datos local</translation>
    </message>
    <message>
        <source>List File:</source>
        <translation>Archivo de lista:</translation>
    </message>
    <message>
        <source>Browse for the list file</source>
        <translation>Elegir el archivo de lista</translation>
    </message>
    <message>
        <source>Update Archive Name:</source>
        <translation>Nombre del archivo de actualización:</translation>
    </message>
    <message>
        <source>Update Server:</source>
        <translation>Servidor de actualización:</translation>
    </message>
    <message>
        <source>First Run Date:</source>
        <translation>Fecha del primer uso:</translation>
    </message>
    <message>
        <source>Nickname:</source>
        <translation>Apodo:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Local Data Folder</source>
        <translation>Carpeta de datos local</translation>
    </message>
    <message>
        <source>A list of sources cannot keep a double quote, so &apos; takes its place.</source>
        <translation>Una lista de fuentes no puede guardar comillas dobles, así que &apos; ocupa su lugar.</translation>
    </message>
    <message>
        <source>Local File Search Locations</source>
        <translation>Lugares de búsqueda locales</translation>
    </message>
    <message>
        <source>Offline Search List files</source>
        <translation>Archivos de lista sin conexión</translation>
    </message>
    <message>
        <source>Path to List file</source>
        <translation>Ruta del archivo de lista</translation>
    </message>
    <message>
        <source>Add &amp;Files...</source>
        <translation>Añadir &amp;archivos...</translation>
    </message>
    <message>
        <source>Pick listing files, which are in the list at once</source>
        <translation>Elegir archivos de lista, que entran en la lista enseguida</translation>
    </message>
    <message>
        <source>Not in the list yet: Add puts the file there.</source>
        <translation>Todavía no está en la lista: «Añadir» pone ahí el archivo.</translation>
    </message>
    <message>
        <source>Not in the list yet: Add puts the folder there.</source>
        <translation>Todavía no está en la lista: «Añadir» pone ahí la carpeta.</translation>
    </message>
    <message>
        <source>All Files</source>
        <translation>Todos los archivos</translation>
    </message>
    <message>
        <source>Folders are added in File, Add/Edit Local Folder To Search List.</source>
        <translation>Las carpetas se añaden en Archivo, Añadir/editar carpetas locales de la lista de búsqueda.</translation>
    </message>
    <message>
        <source>Listing files are added in File, Add/Edit Offline List files.</source>
        <translation>Los archivos de lista se añaden en Archivo, Añadir/editar archivos de lista sin conexión.</translation>
    </message>
    <message>
        <source>Browse for a File Location Path</source>
        <translation>Elegir la ruta de un lugar de búsqueda</translation>
    </message>
    <message>
        <source>Search locations</source>
        <translation>Lugares de búsqueda</translation>
    </message>
    <message>
        <source>Move Selected Up</source>
        <translation>Subir la selección</translation>
    </message>
    <message>
        <source>Move Selected Down</source>
        <translation>Bajar la selección</translation>
    </message>
    <message>
        <source>Delete Selected</source>
        <translation>Eliminar la selección</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Add Fol&amp;ders...</source>
        <translation>Añadir &amp;carpetas...</translation>
    </message>
    <message>
        <source>Pick folders, which are in the list at once</source>
        <translation>Elegir carpetas, que entran en la lista enseguida</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Ruta</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>The Join Date / Time format can not be understood, check the format.</source>
        <translation>No se entiende el formato de la fecha y la hora del primer uso; compruébelo.</translation>
    </message>
    <message>
        <source>The Local Data Folder path is invalid.<byte value="xd"/>
<byte value="xd"/>
Please Pick a valid path!</source>
        <translation>La ruta de la carpeta de datos local no es válida.<byte value="xd"/>
<byte value="xd"/>
¡Elija una ruta válida!</translation>
    </message>
    <message>
        <source>today</source>
        <translation>de hoy</translation>
    </message>
    <message>
        <source>yesterday</source>
        <translation>de ayer</translation>
    </message>
    <message numerus="yes">
        <source>%1 days old</source>
        <translation>
            <numerusform>de hace %1 día</numerusform>
            <numerusform>de hace %1 días</numerusform>
        </translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>del %1</translation>
    </message>
    <message>
        <source>The file was last changed on %1.</source>
        <translation>El archivo se modificó por última vez el %1.</translation>
    </message>
    <message>
        <source>The file has %1 and was last changed on %2.</source>
        <translation>El archivo tiene %1 y se modificó por última vez el %2.</translation>
    </message>
    <message>
        <source>Its listing was last changed on %1.</source>
        <translation>Su lista se modificó por última vez el %1.</translation>
    </message>
    <message>
        <source>Its listing has %1 and was last changed on %2.</source>
        <translation>Su lista tiene %1 y se modificó por última vez el %2.</translation>
    </message>
    <message>
        <source>not there</source>
        <translation>no está</translation>
    </message>
    <message>
        <source>not listed yet</source>
        <translation>aún sin listar</translation>
    </message>
    <message>
        <source>The file is not there.</source>
        <translation>El archivo no está.</translation>
    </message>
    <message>
        <source>The folder is there.</source>
        <translation>La carpeta está.</translation>
    </message>
    <message>
        <source>The folder is not there.</source>
        <translation>La carpeta no está.</translation>
    </message>
    <message>
        <source>It has no listing yet; a rescan makes it.</source>
        <translation>Todavía no tiene lista; una relectura la hace.</translation>
    </message>
    <message>
        <source>Invalid procedure call or argument</source>
        <translation>Llamada a procedimiento o argumento no válidos</translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation>Desbordamiento</translation>
    </message>
    <message>
        <source>Subscript out of range</source>
        <translation>Subíndice fuera del intervalo</translation>
    </message>
    <message>
        <source>Division by zero</source>
        <translation>División por cero</translation>
    </message>
    <message>
        <source>Type mismatch</source>
        <translation>No coinciden los tipos</translation>
    </message>
    <message>
        <source>Bad file name or number</source>
        <translation>Nombre o número de archivo incorrecto</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>No se encuentra el archivo</translation>
    </message>
    <message>
        <source>Device I/O error</source>
        <translation>Error de E/S de dispositivo</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Disco lleno</translation>
    </message>
    <message>
        <source>Input past end of file</source>
        <translation>Lectura más allá del final del archivo</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Permiso denegado</translation>
    </message>
    <message>
        <source>Path/File access error</source>
        <translation>Error de acceso a la ruta o al archivo</translation>
    </message>
    <message>
        <source>Path not found</source>
        <translation>No se encuentra la ruta</translation>
    </message>
    <message>
        <source>Unknown fault</source>
        <translation>Error desconocido</translation>
    </message>
    <message>
        <source>Run-time error &apos;%1&apos;: %2</source>
        <translation>Error de ejecución &apos;%1&apos;: %2</translation>
    </message>
    <message>
        <source>%1 was cut while it was read</source>
        <translation>%1 se acortó mientras se leía</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>entrada estándar</translation>
    </message>
    <message>
        <source>Quorvin Utility Help</source>
        <translation>Ayuda de Quorvin Utility</translation>
    </message>
    <message>
        <source>Release Information</source>
        <translation>Notas de la versión</translation>
    </message>
    <message>
        <source>Program Usage</source>
        <translation>Uso del programa</translation>
    </message>
    <message>
        <source>%1 opens after this window is closed.</source>
        <translation>%1 se abrirá cuando se cierre esta ventana.</translation>
    </message>
    <message>
        <source>Loading %1 (Esc stops)</source>
        <translation>Cargando %1 (Esc detiene)</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Adelante</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Recargar</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Home: program usage</source>
        <translation>Inicio: uso del programa</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Search the index of the help</source>
        <translation>Buscar en el índice de la ayuda</translation>
    </message>
    <message>
        <source>Stop loading</source>
        <translation>Detener la carga</translation>
    </message>
    <message>
        <source>More buttons</source>
        <translation>Más botones</translation>
    </message>
    <message>
        <source>Help toolbar</source>
        <translation>Barra de herramientas de la ayuda</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>Visited addresses</source>
        <translation>Direcciones visitadas</translation>
    </message>
    <message>
        <source>&amp;Address:</source>
        <translation>&amp;Dirección:</translation>
    </message>
    <message>
        <source>&amp;Open it now</source>
        <translation>&amp;Abrir ahora</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Cargando</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Página</translation>
    </message>
    <message>
        <source>Scroll the page down</source>
        <translation>Desplazar la página hacia abajo</translation>
    </message>
    <message>
        <source>Scroll the page sideways</source>
        <translation>Desplazar la página hacia los lados</translation>
    </message>
    <message>
        <source>Free software under the GNU General Public License, version 2 or later</source>
        <translation>Software libre bajo la Licencia Pública General de GNU, versión 2 o posterior</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Acerca de %1</translation>
    </message>
    <message>
        <source>Logo: a lens over a list</source>
        <translation>Logotipo: una lupa sobre una lista</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Runs on %1</source>
        <translation>Funciona en %1</translation>
    </message>
    <message>
        <source>Find on this page</source>
        <translation>Buscar en esta página</translation>
    </message>
    <message>
        <source>Find on this &amp;page:</source>
        <translation>Buscar en esta &amp;página:</translation>
    </message>
    <message>
        <source>P&amp;revious</source>
        <translation>An&amp;terior</translation>
    </message>
    <message>
        <source>Previous match (Shift+F3)</source>
        <translation>Aparición anterior (Mayús+F3)</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Siguiente</translation>
    </message>
    <message>
        <source>Next match (F3)</source>
        <translation>Aparición siguiente (F3)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Close the find bar (Esc)</source>
        <translation>Cerrar la barra de búsqueda (Esc)</translation>
    </message>
    <message>
        <source>Continued from the bottom</source>
        <translation>Se sigue desde el final</translation>
    </message>
    <message>
        <source>Continued from the top</source>
        <translation>Se sigue desde el principio</translation>
    </message>
    <message>
        <source>Not on this page</source>
        <translation>No está en esta página</translation>
    </message>
    <message>
        <source>The page could not be fetched</source>
        <translation>No se ha podido obtener la página</translation>
    </message>
    <message>
        <source>Check the address and your connection, then choose Refresh (F5) to try again.</source>
        <translation>Compruebe la dirección y su conexión, y elija Recargar (F5) para intentarlo de nuevo.</translation>
    </message>
    <message>
        <source>This help page is missing</source>
        <translation>Falta esta página de la ayuda</translation>
    </message>
    <message>
        <source>The help pages come with the program and are kept in its folder. If they have been moved or removed, install the program again.</source>
        <translation>Las páginas de la ayuda vienen con el programa y están en su carpeta. Si se han movido o eliminado, instale el programa de nuevo.</translation>
    </message>
    <message>
        <source>This address cannot be opened here</source>
        <translation>Esta dirección no se puede abrir aquí</translation>
    </message>
    <message>
        <source>This window shows the program&apos;s help pages and plain web pages (http and https). It opens no other files.</source>
        <translation>Esta ventana muestra las páginas de ayuda del programa y páginas web sencillas (http y https). No abre otros archivos.</translation>
    </message>
    <message>
        <source>The server answered: %1 %2</source>
        <translation>El servidor ha respondido: %1&#xa0;%2</translation>
    </message>
    <message>
        <source>The server stopped sending data.</source>
        <translation>El servidor ha dejado de enviar datos.</translation>
    </message>
    <message>
        <source>The page took too long to load.</source>
        <translation>La página ha tardado demasiado en cargarse.</translation>
    </message>
    <message>
        <source>data of an unknown type</source>
        <translation>datos de un tipo desconocido</translation>
    </message>
    <message>
        <source>The server sent %1; only text pages can be shown here.</source>
        <translation>El servidor ha enviado %1; aquí solo se pueden mostrar páginas de texto.</translation>
    </message>
    <message>
        <source>The page is larger than %1.</source>
        <translation>La página ocupa más de %1.</translation>
    </message>
    <message>
        <source>Earlier versions</source>
        <translation>Versiones anteriores</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Entries</source>
        <translation>Entradas</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Completa</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>dañada</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>sí</translation>
    </message>
    <message>
        <source>no</source>
        <translation>no</translation>
    </message>
    <message>
        <source>The listing history cannot be read: %1</source>
        <translation>No se puede leer el historial de listas: %1</translation>
    </message>
    <message>
        <source>Listing History</source>
        <translation>Historial de listas</translation>
    </message>
    <message>
        <source>Listing</source>
        <translation>Lista</translation>
    </message>
    <message>
        <source>Listings that have earlier versions</source>
        <translation>Listas que tienen versiones anteriores</translation>
    </message>
    <message>
        <source>&amp;Listing:</source>
        <translation>&amp;Lista:</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Restaurar</translation>
    </message>
    <message>
        <source>There are no earlier versions yet. One is kept whenever a rescan or an update replaces a listing by another.</source>
        <translation>Todavía no hay versiones anteriores. Se guarda una cada vez que una relectura o una actualización sustituye una lista por otra.</translation>
    </message>
    <message>
        <source>Now: %1</source>
        <translation>Ahora: %1</translation>
    </message>
    <message>
        <source>The listing itself is not there now.</source>
        <translation>La lista misma no está ahora.</translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 entries, %3, complete</source>
        <translation>
            <numerusform>%1, %2 entrada, %3, completa</numerusform>
            <numerusform>%1, %2 entradas, %3, completa</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 entries, %3, incomplete</source>
        <translation>
            <numerusform>%1, %2 entrada, %3, incompleta</numerusform>
            <numerusform>%1, %2 entradas, %3, incompleta</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 differs from a version that is missing</source>
        <translation>%1 difiere de una versión que falta</translation>
    </message>
    <message>
        <source>There is not enough memory</source>
        <translation>No hay memoria suficiente</translation>
    </message>
    <message>
        <source>The listing cannot be restored now: a refresh is running.</source>
        <translation>La lista no se puede restaurar ahora: hay una actualización en curso.</translation>
    </message>
    <message>
        <source>%1 is damaged</source>
        <translation>%1 está dañado</translation>
    </message>
    <message>
        <source>The listing could not be packed: %1</source>
        <translation>No se ha podido comprimir la lista: %1</translation>
    </message>
    <message>
        <source>the listing changed while it was read</source>
        <translation>la lista cambió mientras se leía</translation>
    </message>
    <message>
        <source>No audio player was found. Install one of Audacious, VLC, Strawberry, Clementine, DeaDBeeF or Rhythmbox, or set EnqueueCommand in the settings to the command of your player.</source>
        <translation>No se ha encontrado ningún reproductor de audio. Instale Audacious, VLC, Strawberry, Clementine, DeaDBeeF o Rhythmbox, o ponga en EnqueueCommand, en los ajustes, la orden de su reproductor.</translation>
    </message>
    <message>
        <source>The audio player could not be started. Please check the command in the setting EnqueueCommand.</source>
        <translation>No se ha podido iniciar el reproductor de audio. Compruebe la orden del ajuste EnqueueCommand.</translation>
    </message>
    <message>
        <source>Bad file name Launching: %1<byte value="xd"/>
The file may have been renamed, deleted or moved. Try rescanning the file lists.</source>
        <translation>Nombre de archivo incorrecto al abrir: %1<byte value="xd"/>
Puede que se haya cambiado el nombre del archivo, o que se haya eliminado o movido. Pruebe a releer las listas de archivos.</translation>
    </message>
    <message>
        <source>Launch Error: %1%2</source>
        <translation>Error al abrir: %1%2</translation>
    </message>
    <message>
        <source>en</source>
        <extracomment>The code of the language that you translate into, such as de</extracomment>
        <translation>es</translation>
    </message>
    <message>
        <source>Search in these hits:</source>
        <translation>Buscar en estos resultados:</translation>
    </message>
    <message>
        <source>Match</source>
        <translation>Grado</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>From the listing of an online source</source>
        <translation>De la lista de una fuente en línea</translation>
    </message>
    <message>
        <source>From the main data file</source>
        <translation>Del archivo de datos principal</translation>
    </message>
    <message>
        <source>From an offline listing</source>
        <translation>De una lista sin conexión</translation>
    </message>
    <message>
        <source>No hit holds all of these words.</source>
        <translation>Ningún resultado contiene todas estas palabras.</translation>
    </message>
    <message>
        <source>This page shows its hits with a script of its own; please allow it to run.</source>
        <translation>Esta página muestra sus resultados con un script propio; permita que se ejecute.</translation>
    </message>
    <message>
        <source>Folder of your own</source>
        <translation>Carpeta propia</translation>
    </message>
    <message>
        <source>Main data file</source>
        <translation>Archivo de datos principal</translation>
    </message>
    <message>
        <source>Offline listing</source>
        <translation>Lista sin conexión</translation>
    </message>
    <message>
        <source>Not known: only folders of your own can be reached</source>
        <translation>No se conoce: solo se llega a las carpetas propias</translation>
    </message>
    <message>
        <source>Not found on a connected drive</source>
        <translation>No se encuentra en las unidades conectadas</translation>
    </message>
    <message>
        <source>Is there</source>
        <translation>Está</translation>
    </message>
    <message>
        <source>Words found</source>
        <translation>Palabras encontradas</translation>
    </message>
    <message>
        <source>1 of 1 word</source>
        <translation>1 de 1 palabra</translation>
    </message>
    <message>
        <source>Size in bytes</source>
        <translation>Tamaño en bytes</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Fecha y hora</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Fuente</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>The file is on a connected drive:</source>
        <translation>El archivo está en una unidad conectada:</translation>
    </message>
    <message>
        <source>In the catalogue: %1</source>
        <translation>En el catálogo: %1</translation>
    </message>
    <message>
        <source>Listing: %1</source>
        <translation>Lista: %1</translation>
    </message>
    <message>
        <source>The file is on the volume &quot;%1&quot;. Insert that disk to get at it.</source>
        <translation>El archivo está en el volumen «%1». Inserte ese disco para llegar a él.</translation>
    </message>
    <message>
        <source>Catalogued from: %1</source>
        <translation>Catalogado desde: %1</translation>
    </message>
    <message>
        <source>The folder of &quot;%1&quot; is connected, but the file is not there any more. It may have been renamed, moved or deleted.</source>
        <translation>La carpeta de «%1» está conectada, pero el archivo ya no está ahí. Puede que se haya cambiado su nombre, o que se haya movido o eliminado.</translation>
    </message>
    <message>
        <source>The file is on the volume &quot;%1&quot;, which is not connected. Insert or connect it to get at the file.</source>
        <translation>El archivo está en el volumen «%1», que no está conectado. Insértelo o conéctelo para llegar al archivo.</translation>
    </message>
    <message>
        <source>Sorted by %1, ascending</source>
        <translation>Ordenado por %1, ascendente</translation>
    </message>
    <message>
        <source>Sorted by %1, descending</source>
        <translation>Ordenado por %1, descendente</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Valores</translation>
    </message>
    <message>
        <source>Scroll the values</source>
        <translation>Desplazar los valores</translation>
    </message>
    <message>
        <source>Properties of %1</source>
        <translation>Propiedades de %1</translation>
    </message>
    <message>
        <source>Line in the listing</source>
        <translation>Línea en la lista</translation>
    </message>
    <message>
        <source>C&amp;opy All</source>
        <translation>C&amp;opiar todo</translation>
    </message>
    <message>
        <source>Not in the listing any more</source>
        <translation>Ya no está en la lista</translation>
    </message>
    <message>
        <source>More than %1 hits: sorted by their text in lower case</source>
        <translation>Más de %1 resultados: ordenados por su texto en minúsculas</translation>
    </message>
    <message>
        <source>holds too many files; %1 name was left out</source>
        <translation>contiene demasiados archivos; se ha omitido %1 nombre</translation>
    </message>
    <message numerus="yes">
        <source>holds too many files; %1 names were left out</source>
        <translation>
            <numerusform>contiene demasiados archivos; se ha omitido %1 nombre</numerusform>
            <numerusform>contiene demasiados archivos; se han omitido %1 nombres</numerusform>
        </translation>
    </message>
    <message>
        <source>holds too many sub-folders; %1 name was left out</source>
        <translation>contiene demasiadas subcarpetas; se ha omitido %1 nombre</translation>
    </message>
    <message numerus="yes">
        <source>holds too many sub-folders; %1 names were left out</source>
        <translation>
            <numerusform>contiene demasiadas subcarpetas; se ha omitido %1 nombre</numerusform>
            <numerusform>contiene demasiadas subcarpetas; se han omitido %1 nombres</numerusform>
        </translation>
    </message>
    <message>
        <source>Contains unsuported characters represented by the ?</source>
        <translation>Contiene caracteres no admitidos, representados por el ?</translation>
    </message>
    <message>
        <source>was left out: its path is too long for a listing</source>
        <translation>se ha omitido: su ruta es demasiado larga para una lista</translation>
    </message>
    <message>
        <source>is too large for a listing; its size was written as %1</source>
        <translation>es demasiado grande para una lista; su tamaño se ha escrito como %1</translation>
    </message>
    <message>
        <source>Indexing: %1</source>
        <translation>Leyendo: %1</translation>
    </message>
    <message>
        <source>%1 file</source>
        <translation>%1 archivo</translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1 archivo</numerusform>
            <numerusform>%1 archivos</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 in %2 folder</source>
        <comment>files</comment>
        <translation>%1 en %2 carpeta</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %2 folders</source>
        <comment>files</comment>
        <translation>
            <numerusform>%1 en %2 carpeta</numerusform>
            <numerusform>%1 en %2 carpetas</numerusform>
        </translation>
    </message>
    <message>
        <source>Updating online file lists... %1 of %2</source>
        <extracomment>Keep the three dots and the blank behind them.</extracomment>
        <translation>Actualizando las listas en línea... %1 de %2</translation>
    </message>
    <message>
        <source>The listing of %1 was not made, since it would overwrite %2; please give it another description</source>
        <translation>No se ha hecho la lista de %1, porque sobrescribiría %2; dele otra descripción</translation>
    </message>
    <message>
        <source>%1 not found; the listing of %2 was kept</source>
        <translation>No se encuentra %1; se ha conservado la lista de %2</translation>
    </message>
    <message>
        <source>The listing of %1 from %2 was replaced by that from %3, which has the same description; please give one of them another description</source>
        <translation>La lista de %1 hecha de %2 se ha sustituido por la de %3, que tiene la misma descripción; dé otra descripción a una de las dos</translation>
    </message>
    <message>
        <source>The earlier listing of %1 could not be kept in the listing history: %2</source>
        <translation>La lista anterior de %1 no se ha podido guardar en el historial: %2</translation>
    </message>
    <message>
        <source>The listing of %1 is incomplete, since the rescan was stopped</source>
        <translation>La lista de %1 está incompleta, porque se detuvo la relectura</translation>
    </message>
    <message>
        <source>%1 holds no files any more; if its drive is not connected, connect it and rescan. The listing of %2 is empty now</source>
        <translation>%1 ya no contiene archivos; si su unidad no está conectada, conéctela y vuelva a leer. La lista de %2 está ahora vacía</translation>
    </message>
    <message numerus="yes">
        <source>File, Listing History brings back the one of %1 with %2 entries</source>
        <translation>
            <numerusform>Archivo, Historial de listas recupera la del %1 con %2 entrada</numerusform>
            <numerusform>Archivo, Historial de listas recupera la del %1 con %2 entradas</numerusform>
        </translation>
    </message>
    <message>
        <source>The local lists cannot be refreshed now: another refresh is running.</source>
        <translation>Las listas locales no se pueden actualizar ahora: hay otra actualización en curso.</translation>
    </message>
    <message>
        <source>Error Refreshing Local Lists:%1</source>
        <translation>Error al actualizar las listas locales: %1</translation>
    </message>
    <message>
        <source>(there is not enough memory)</source>
        <translation>(no hay memoria suficiente)</translation>
    </message>
    <message>
        <source>(too many files are open)</source>
        <translation>(hay demasiados archivos abiertos)</translation>
    </message>
    <message>
        <source>holds &quot;%1&quot;; a search misreads its line</source>
        <translation>contiene «%1»; una búsqueda lee mal su línea</translation>
    </message>
    <message>
        <source>File not found (invalid name)</source>
        <translation>No se encuentra el archivo (nombre no válido)</translation>
    </message>
    <message>
        <source>In %1:</source>
        <translation>En %1:</translation>
    </message>
    <message>
        <source>Access Error (invalid name or permission)</source>
        <translation>Error de acceso (nombre no válido o falta de permiso)</translation>
    </message>
    <message>
        <source>Left out: %1 of %2 files in %3</source>
        <translation>Omitidos: %1 de %2 archivos de %3</translation>
    </message>
    <message>
        <source>Left out: %1 of %2 sub-folders in %3</source>
        <translation>Omitidas: %1 de %2 subcarpetas de %3</translation>
    </message>
    <message>
        <source>Error Number: %1 %2<byte value="xd"/>
Error reading:%3 Skipping.</source>
        <translation>Número de error: %1&#xa0;%2<byte value="xd"/>
Error al leer: %3 Se omite.</translation>
    </message>
    <message>
        <source>there is not enough memory for it</source>
        <translation>no hay memoria suficiente para ello</translation>
    </message>
    <message>
        <source>the program that draws metafiles has not answered as it should</source>
        <translation>el programa que dibuja metarchivos no ha respondido como debía</translation>
    </message>
    <message>
        <source>it is larger than 64 MB</source>
        <translation>ocupa más de 64 MB</translation>
    </message>
    <message>
        <source>a bitmap in it has an unknown header</source>
        <translation>una imagen que contiene tiene una cabecera desconocida</translation>
    </message>
    <message>
        <source>a bitmap in it is empty</source>
        <translation>una imagen que contiene está vacía</translation>
    </message>
    <message>
        <source>a bitmap in it is too large</source>
        <translation>una imagen que contiene es demasiado grande</translation>
    </message>
    <message>
        <source>JPEG and PNG pictures in it</source>
        <translation>imágenes JPEG y PNG que contiene</translation>
    </message>
    <message>
        <source>a bitmap in it cannot be read</source>
        <translation>una imagen que contiene no se puede leer</translation>
    </message>
    <message>
        <source>a bitmap in it is not monochrome</source>
        <translation>una imagen que contiene no es monocroma</translation>
    </message>
    <message>
        <source>its scale makes no sense</source>
        <translation>su escala no tiene sentido</translation>
    </message>
    <message>
        <source>its header is too short</source>
        <translation>su cabecera es demasiado corta</translation>
    </message>
    <message>
        <source>it is damaged or cut short</source>
        <translation>está dañado o cortado</translation>
    </message>
    <message>
        <source>damaged parts</source>
        <translation>partes dañadas</translation>
    </message>
    <message>
        <source>flood fills</source>
        <translation>rellenos</translation>
    </message>
    <message>
        <source>EMF+ drawings</source>
        <translation>dibujos EMF+</translation>
    </message>
    <message>
        <source>OpenGL drawings</source>
        <translation>dibujos OpenGL</translation>
    </message>
    <message>
        <source>mirroring</source>
        <translation>simetría</translation>
    </message>
    <message>
        <source>it has too many objects</source>
        <translation>tiene demasiados objetos</translation>
    </message>
    <message>
        <source>bitmaps mixed through masks</source>
        <translation>imágenes mezcladas a través de máscaras</translation>
    </message>
    <message>
        <source>colours of palettes</source>
        <translation>colores de paletas</translation>
    </message>
    <message>
        <source>a region in it has too many parts</source>
        <translation>una región que contiene tiene demasiadas partes</translation>
    </message>
    <message>
        <source>it uses an object that it has not made</source>
        <translation>usa un objeto que no ha creado</translation>
    </message>
    <message>
        <source>an arc in it makes no sense</source>
        <translation>un arco que contiene no tiene sentido</translation>
    </message>
    <message>
        <source>it needs too much memory</source>
        <translation>necesita demasiada memoria</translation>
    </message>
    <message>
        <source>it has no size</source>
        <translation>no tiene tamaño</translation>
    </message>
    <message>
        <source>it saves its state too often</source>
        <translation>guarda su estado demasiadas veces</translation>
    </message>
    <message>
        <source>it cuts its drawing in an unknown way</source>
        <translation>recorta su dibujo de un modo desconocido</translation>
    </message>
    <message>
        <source>rare raster operations</source>
        <translation>operaciones de trama poco comunes</translation>
    </message>
    <message>
        <source>a bitmap in it has no size</source>
        <translation>una imagen que contiene no tiene tamaño</translation>
    </message>
    <message>
        <source>text by glyph numbers</source>
        <translation>texto por números de glifo</translation>
    </message>
    <message>
        <source>letters of symbol fonts</source>
        <translation>letras de tipos de símbolos</translation>
    </message>
    <message>
        <source>it is not a metafile</source>
        <translation>no es un metarchivo</translation>
    </message>
    <message>
        <source>it does not say how large it is</source>
        <translation>no dice qué tamaño tiene</translation>
    </message>
    <message>
        <source>patterns in the form of a device</source>
        <translation>tramas en la forma de un dispositivo</translation>
    </message>
    <message>
        <source>bitmaps in the form of a device</source>
        <translation>imágenes en la forma de un dispositivo</translation>
    </message>
    <message>
        <source>the answer names no lists</source>
        <translation>la respuesta no nombra ninguna lista</translation>
    </message>
    <message>
        <source>The answer is not that of a list exchange</source>
        <translation>La respuesta no es la de un intercambio de listas</translation>
    </message>
    <message>
        <source>The name of a list has no end</source>
        <translation>El nombre de una lista no tiene fin</translation>
    </message>
    <message>
        <source>The names of the lists have no end</source>
        <translation>Los nombres de las listas no tienen fin</translation>
    </message>
    <message>
        <source>1 list</source>
        <translation>1 lista</translation>
    </message>
    <message numerus="yes">
        <source>%1 lists</source>
        <translation>
            <numerusform>%1 lista</numerusform>
            <numerusform>%1 listas</numerusform>
        </translation>
    </message>
    <message>
        <source>No lists came from %1.</source>
        <translation>No han llegado listas de %1.</translation>
    </message>
    <message>
        <source>The archive holds 1 listing.</source>
        <translation>El archivo comprimido contiene 1 lista.</translation>
    </message>
    <message numerus="yes">
        <source>The archive holds %1 listings.</source>
        <translation>
            <numerusform>El archivo comprimido contiene %1 lista.</numerusform>
            <numerusform>El archivo comprimido contiene %1 listas.</numerusform>
        </translation>
    </message>
    <message>
        <source>The archives hold 1 listing.</source>
        <translation>Los archivos comprimidos contienen 1 lista.</translation>
    </message>
    <message numerus="yes">
        <source>The archives hold %1 listings.</source>
        <translation>
            <numerusform>Los archivos comprimidos contienen %1 lista.</numerusform>
            <numerusform>Los archivos comprimidos contienen %1 listas.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is room for 1 more offline source.</source>
        <translation>Hay sitio para 1 fuente sin conexión más.</translation>
    </message>
    <message numerus="yes">
        <source>There is room for %1 more offline sources.</source>
        <translation>
            <numerusform>Hay sitio para %1 fuente sin conexión más.</numerusform>
            <numerusform>Hay sitio para %1 fuentes sin conexión más.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 came from %2 into the folder</source>
        <translation>Ha llegado %1 de %2 a la carpeta</translation>
    </message>
    <message>
        <source>Add the received lists to the offline sources, so that the next search includes them?</source>
        <translation>¿Añadir las listas recibidas a las fuentes sin conexión, para que la próxima búsqueda las incluya?</translation>
    </message>
    <message>
        <source>1 list was left out, since unpacking was cancelled. The archives stay in the folder.</source>
        <translation>Se ha omitido 1 lista, porque se canceló la descompresión. Los archivos comprimidos siguen en la carpeta.</translation>
    </message>
    <message numerus="yes">
        <source>%1 lists were left out, since unpacking was cancelled. The archives stay in the folder.</source>
        <translation>
            <numerusform>Se ha omitido %1 lista, porque se canceló la descompresión. Los archivos comprimidos siguen en la carpeta.</numerusform>
            <numerusform>Se han omitido %1 listas, porque se canceló la descompresión. Los archivos comprimidos siguen en la carpeta.</numerusform>
        </translation>
    </message>
    <message>
        <source>The archive of &quot;%1&quot; holds no listing.</source>
        <translation>El archivo comprimido de «%1» no contiene ninguna lista.</translation>
    </message>
    <message>
        <source>%1 has a name that no source can have.</source>
        <translation>%1 tiene un nombre que ninguna fuente puede tener.</translation>
    </message>
    <message>
        <source>%1 from %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>There is no room for more than %1 offline sources. The received lists stay unpacked beside its archives.</source>
        <translation>No hay sitio para más de %1 fuentes sin conexión. Las listas recibidas quedan descomprimidas junto a sus archivos comprimidos.</translation>
    </message>
    <message>
        <source>Unpacking %1</source>
        <translation>Descomprimiendo %1</translation>
    </message>
    <message>
        <source>One run of the program can ask for about 1000 lists. Start it again to get the others.</source>
        <translation>Una ejecución del programa puede pedir unas 1000 listas. Iníciela otra vez para obtener las demás.</translation>
    </message>
    <message>
        <source>The archive of %1 has no end</source>
        <translation>El archivo comprimido de %1 no tiene fin</translation>
    </message>
    <message>
        <source>The peer sent no archive of %1.</source>
        <translation>El otro equipo no ha enviado ningún archivo de %1.</translation>
    </message>
    <message>
        <source>The archive of %1 did not arrive complete, and was not kept.</source>
        <translation>El archivo comprimido de %1 no ha llegado completo y no se ha conservado.</translation>
    </message>
    <message>
        <source>The peer could not be reached: %1</source>
        <translation>No se ha podido conectar con el otro equipo: %1</translation>
    </message>
    <message>
        <source>The peer ended the connection before everything had arrived.</source>
        <translation>El otro equipo ha cerrado la conexión antes de que llegara todo.</translation>
    </message>
    <message>
        <source>The peer has stopped sending before everything had arrived.</source>
        <translation>El otro equipo ha dejado de enviar antes de que llegara todo.</translation>
    </message>
    <message>
        <source>The peer has not sent anything for %1 seconds.</source>
        <translation>El otro equipo no ha enviado nada desde hace %1 segundos.</translation>
    </message>
    <message>
        <source>The peer could not be reached within %1 seconds.</source>
        <translation>No se ha podido conectar con el otro equipo en %1 segundos.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Getting Lists</source>
        <translation>Obteniendo listas</translation>
    </message>
    <message>
        <source>Peer: %1</source>
        <translation>Equipo: %1</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Conectando...</translation>
    </message>
    <message>
        <source>Asking for the lists...</source>
        <translation>Pidiendo las listas...</translation>
    </message>
    <message>
        <source>List %1 of %2: %3</source>
        <translation>Lista %1 de %2: %3</translation>
    </message>
    <message numerus="yes">
        <source>%1 bytes</source>
        <translation>
            <numerusform>%1 byte</numerusform>
            <numerusform>%1 bytes</numerusform>
        </translation>
    </message>
    <message>
        <source>There was 1 more problem.</source>
        <translation>Hubo 1 problema más.</translation>
    </message>
    <message numerus="yes">
        <source>There were %1 more problems.</source>
        <translation>
            <numerusform>Hubo %1 problema más.</numerusform>
            <numerusform>Hubo %1 problemas más.</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the name or address of a computer.</source>
        <translation>«%1» no es ni el nombre ni la dirección de un equipo.</translation>
    </message>
    <message>
        <source>Your lists are not shared: port %1 could not be opened.<byte value="xd"/>
<byte value="xd"/>
%2</source>
        <translation>Sus listas no se comparten: no se ha podido abrir el puerto %1.<byte value="xd"/>
<byte value="xd"/>
%2</translation>
    </message>
    <message>
        <source>They are packed when the running work has ended.</source>
        <translation>Se comprimirán cuando termine el trabajo en curso.</translation>
    </message>
    <message>
        <source>Your lists are shared.</source>
        <translation>Sus listas se comparten.</translation>
    </message>
    <message>
        <source>%1 was not made by sharing. It was kept, and peers get it as it is.</source>
        <translation>%1 no se hizo al compartir. Se ha conservado, y los otros equipos lo reciben tal como está.</translation>
    </message>
    <message>
        <source>Not all could be packed:</source>
        <translation>No se han podido comprimir todas:</translation>
    </message>
    <message>
        <source>Your lists are shared on port %1 of this address: %2</source>
        <translation>Sus listas se comparten en el puerto %1 de esta dirección: %2</translation>
    </message>
    <message>
        <source>Your lists are shared on port %1 of these addresses: %2</source>
        <translation>Sus listas se comparten en el puerto %1 de estas direcciones: %2</translation>
    </message>
    <message>
        <source>a pipe for signals</source>
        <translation>una tubería para señales</translation>
    </message>
    <message>
        <source>Image Preview</source>
        <translation>Vista previa de la imagen</translation>
    </message>
    <message>
        <source>Loading %1...</source>
        <translation>Cargando %1...</translation>
    </message>
    <message>
        <source>Drawn without: %1.</source>
        <translation>Dibujado sin: %1.</translation>
    </message>
    <message>
        <source>Picture frame</source>
        <translation>Marco de la imagen</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Picture %1</source>
        <translation>Imagen %1</translation>
    </message>
    <message>
        <source>%1 cannot be shown: %2.</source>
        <translation>%1 no se puede mostrar: %2.</translation>
    </message>
    <message>
        <source>it is damaged, or of a kind that is not supported</source>
        <translation>está dañado, o es de una clase no admitida</translation>
    </message>
    <message>
        <source>with %1 by %2 pixels it is larger than 256 megapixels</source>
        <translation>con %1 por %2 píxeles supera los 256 megapíxeles</translation>
    </message>
    <message>
        <source>it is not a bitmap, icon, metafile, JPEG or GIF picture</source>
        <translation>no es una imagen de mapa de bits, icono, metarchivo, JPEG o GIF</translation>
    </message>
    <message>
        <source>its loading was cancelled</source>
        <translation>se canceló su carga</translation>
    </message>
    <message>
        <source>drawing it takes too long</source>
        <translation>dibujarlo tarda demasiado</translation>
    </message>
    <message>
        <source>the program that draws metafiles cannot be started</source>
        <translation>no se puede iniciar el programa que dibuja metarchivos</translation>
    </message>
    <message>
        <source>it is damaged, or drawing it needs too much memory or time</source>
        <translation>está dañado, o dibujarlo necesita demasiada memoria o tiempo</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Informe</translation>
    </message>
    <message>
        <source>Scroll the results down</source>
        <translation>Desplazar el informe hacia abajo</translation>
    </message>
    <message>
        <source>Scroll the results sideways</source>
        <translation>Desplazar el informe hacia los lados</translation>
    </message>
    <message>
        <source>(damaged in the search cache; press Find again)</source>
        <translation>(dañado en la caché de búsqueda; pulse otra vez Buscar)</translation>
    </message>
    <message>
        <source>Line %1 is longer than %2 bytes</source>
        <translation>La línea %1 tiene más de %2 bytes</translation>
    </message>
    <message numerus="yes">
        <source>and %1 more listings</source>
        <translation>
            <numerusform>y %1 lista más</numerusform>
            <numerusform>y %1 listas más</numerusform>
        </translation>
    </message>
    <message>
        <source>Listing file not found: %1</source>
        <translation>No se encuentra el archivo de lista: %1</translation>
    </message>
    <message>
        <source>The listing %1 could not be searched to its end.<byte value="xd"/>
Run-time error &apos;%2&apos;: %3<byte value="xd"/>
The hits found in it so far are kept.</source>
        <translation>No se ha podido buscar en la lista %1 hasta el final.<byte value="xd"/>
Error de ejecución &apos;%2&apos;: %3<byte value="xd"/>
Se conservan los resultados encontrados en ella hasta ahí.</translation>
    </message>
    <message>
        <source>The size or date of some hits could not be read. They are shown with the size and date of the hit before them.</source>
        <translation>No se ha podido leer el tamaño o la fecha de algunos resultados. Se muestran con el tamaño y la fecha del resultado anterior.</translation>
    </message>
    <message numerus="yes">
        <source>%1: %2 line(s), the first is line %3</source>
        <translation>
            <numerusform>%1: %2 línea, la primera es la línea %3</numerusform>
            <numerusform>%1: %2 líneas, la primera es la línea %3</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and in %1 more listings</source>
        <translation>
            <numerusform>y en %1 lista más</numerusform>
            <numerusform>y en %1 listas más</numerusform>
        </translation>
    </message>
    <message>
        <source>These listings were written to while they were searched. Hits in them may come from the old or the new content; press Find again for the new one.</source>
        <translation>Se ha escrito en estas listas mientras se buscaba en ellas. Sus resultados pueden ser del contenido antiguo o del nuevo; para el nuevo, pulse otra vez Buscar.</translation>
    </message>
    <message>
        <source>These listings are not plain text, so little or nothing is found in them. If one was saved as UTF-16 (&quot;Unicode&quot;) without a byte order mark, save it as UTF-8.</source>
        <translation>Estas listas no son texto sin formato, así que en ellas se encuentra poco o nada. Si alguna se guardó como UTF-16 («Unicode») sin marca de orden de bytes, guárdela como UTF-8.</translation>
    </message>
    <message>
        <source>A file of the search cache is damaged</source>
        <translation>Un archivo de la caché de búsqueda está dañado</translation>
    </message>
    <message>
        <source>%1 of %2 words</source>
        <translation>%1 de %2 palabras</translation>
    </message>
    <message>
        <source>%1; missing: %2</source>
        <translation>%1; falta: %2</translation>
    </message>
    <message>
        <source>Your lists were kept in %1, beside the program, where a new build or an update may remove them.</source>
        <translation>Sus listas estaban en %1, junto al programa, donde una nueva compilación o una actualización puede eliminarlas.</translation>
    </message>
    <message>
        <source>They have been copied to %1, and are used there from now on. The old files are no longer needed.</source>
        <translation>Se han copiado a %1, y desde ahora se usan ahí. Los archivos antiguos ya no hacen falta.</translation>
    </message>
    <message>
        <source>They could not be copied to %1, which holds another file of the name %2. Put together by hand what you want to keep, and choose its folder under File, Options.</source>
        <translation>No se han podido copiar a %1, donde hay otro archivo con el nombre %2. Reúna a mano lo que quiera conservar, y elija su carpeta en Archivo, Opciones.</translation>
    </message>
    <message>
        <source>They could not be copied to %1: %2</source>
        <translation>No se han podido copiar a %1: %2</translation>
    </message>
    <message>
        <source>An earlier run ended without saving these changes, the last of them on %1:</source>
        <translation>Una ejecución anterior terminó sin guardar estos cambios, el último de ellos el %1:</translation>
    </message>
    <message>
        <source>Local folders in the search list</source>
        <translation>Carpetas locales en la lista de búsqueda</translation>
    </message>
    <message>
        <source>Offline list files</source>
        <translation>Archivos de lista sin conexión</translation>
    </message>
    <message>
        <source>Do you want to have them back? No removes them.</source>
        <translation>¿Quiere recuperarlos? Con «No» se eliminan.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number</source>
        <translation>«%1» no es un número</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a date</source>
        <translation>«%1» no es una fecha</translation>
    </message>
    <message>
        <source>%1 is in the list already.</source>
        <translation>%1 ya está en la lista.</translation>
    </message>
    <message>
        <source>The Path must be at lease 3 characters long. (ex: C:\)</source>
        <translation>La ruta debe tener al menos 3 caracteres. (p. ej.: C:\)</translation>
    </message>
    <message>
        <source>Description must not be left blank or contain the characters /?\:|*</source>
        <translation>La descripción no debe quedar vacía ni contener los caracteres /?\:|*</translation>
    </message>
    <message>
        <source>The Path must not contain a double quote, since a list of sources cannot keep one. Please give the folder another name, or use a link to it.</source>
        <translation>La ruta no debe contener comillas dobles, porque una lista de fuentes no puede guardarlas. Dé otro nombre a la carpeta, o use un enlace a ella.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file of the program; it needs another description.</source>
        <translation>«%1» es un archivo del programa; hace falta otra descripción.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there twice; both would share one listing.</source>
        <translation>«%1» está dos veces; ambas compartirían una lista.</translation>
    </message>
    <message>
        <source>A list can hold %1 entries at most, and this one has %2.<byte value="xd"/>
<byte value="xd"/>
Nothing has been saved. Please delete entries and save again.</source>
        <translation>Una lista puede contener %1 entradas como máximo, y esta tiene %2.<byte value="xd"/>
<byte value="xd"/>
No se ha guardado nada. Elimine entradas y guarde otra vez.</translation>
    </message>
    <message>
        <source>%1 holds more than %2 records</source>
        <translation>%1 contiene más de %2 registros</translation>
    </message>
    <message>
        <source>The list %1 was not read completely when the program started.</source>
        <translation>La lista %1 no se leyó por completo al iniciar el programa.</translation>
    </message>
    <message>
        <source>The list %1 was not read, since its folder became the data folder only later.</source>
        <translation>La lista %1 no se leyó, porque su carpeta pasó a ser la carpeta de datos más tarde.</translation>
    </message>
    <message>
        <source>The list %1 was not there when the program started.</source>
        <translation>La lista %1 no estaba cuando se inició el programa.</translation>
    </message>
    <message>
        <source>The list %1 has been changed by another program.</source>
        <translation>Otro programa ha cambiado la lista %1.</translation>
    </message>
    <message>
        <source>The list %1 looks damaged: it has the path &quot;%2&quot; where a description should be. A double quote in a description or a path does that.</source>
        <translation>La lista %1 parece dañada: tiene la ruta «%2» donde debería haber una descripción. Lo causan unas comillas dobles en una descripción o una ruta.</translation>
    </message>
    <message>
        <source>It is kept as %1, and the list as it is now is saved in its place.</source>
        <translation>Se conserva como %1, y en su lugar se guarda la lista tal como está ahora.</translation>
    </message>
    <message>
        <source>It was left as it is.</source>
        <translation>Se ha dejado como estaba.</translation>
    </message>
    <message>
        <source>The Local Data Folder path is invalid.<byte value="xd"/>
<byte value="xd"/>
Unable to save the online sources list.</source>
        <translation>La ruta de la carpeta de datos local no es válida.<byte value="xd"/>
<byte value="xd"/>
No se puede guardar la lista de fuentes en línea.</translation>
    </message>
    <message>
        <source>the server did not answer in time</source>
        <translation>el servidor no ha respondido a tiempo</translation>
    </message>
    <message>
        <source>the document is too large</source>
        <translation>el documento es demasiado grande</translation>
    </message>
    <message>
        <source>the document ended too early</source>
        <translation>el documento ha terminado demasiado pronto</translation>
    </message>
    <message>
        <source>the server answered %1</source>
        <translation>el servidor ha respondido %1</translation>
    </message>
    <message>
        <source>the server fell silent</source>
        <translation>el servidor ha dejado de responder</translation>
    </message>
    <message>
        <source>These files of the archive were left out, since they would have replaced your source lists, your settings, your listing history, or the program itself:</source>
        <translation>Se han omitido estos archivos del archivo comprimido, porque habrían sustituido sus listas de fuentes, sus ajustes, su historial de listas o el propio programa:</translation>
    </message>
    <message numerus="yes">
        <source>and %1 more</source>
        <translation>
            <numerusform>y %1 más</numerusform>
            <numerusform>y %1 más</numerusform>
        </translation>
    </message>
    <message>
        <source>Archive Error: %1</source>
        <translation>Error del archivo comprimido: %1</translation>
    </message>
    <message>
        <source>The earlier %1 could not be kept in the listing history: %2</source>
        <translation>El anterior %1 no se ha podido guardar en el historial de listas: %2</translation>
    </message>
    <message>
        <source>%1: Could not get an update.</source>
        <translation>%1: no se ha podido obtener una actualización.</translation>
    </message>
    <message>
        <source>The update was downloaded, but %1 cannot be found now. Nothing was unpacked.</source>
        <translation>Se ha descargado la actualización, pero ahora no se encuentra %1. No se ha descomprimido nada.</translation>
    </message>
    <message>
        <source>Your data file is up to date.</source>
        <translation>Su archivo de datos está al día.</translation>
    </message>
    <message>
        <source>An updated data file is avaliable at %1 do you want to download the update?</source>
        <translation>Hay un archivo de datos más reciente en %1. ¿Quiere descargar la actualización?</translation>
    </message>
    <message>
        <source>Starting download of update.</source>
        <translation>Empieza la descarga de la actualización.</translation>
    </message>
    <message>
        <source>Retrieved compressed data update!</source>
        <translation>¡Actualización comprimida de los datos obtenida!</translation>
    </message>
    <message>
        <source>Decompressing...</source>
        <translation>Descomprimiendo...</translation>
    </message>
    <message>
        <source>Decompressing Compressed Data File.</source>
        <translation>Descomprimiendo el archivo de datos comprimido.</translation>
    </message>
    <message>
        <source>%1 could not be unpacked</source>
        <translation>%1 no se ha podido descomprimir</translation>
    </message>
    <message>
        <source>A search is running.</source>
        <translation>Hay una búsqueda en curso.</translation>
    </message>
    <message>
        <source>The local folders are being rescanned.</source>
        <translation>Se están releyendo las carpetas locales.</translation>
    </message>
    <message>
        <source>A web update is running.</source>
        <translation>Hay una actualización web en curso.</translation>
    </message>
    <message>
        <source>The main data file is being unpacked.</source>
        <translation>Se está descomprimiendo el archivo de datos principal.</translation>
    </message>
    <message>
        <source>Your lists are being packed for sharing.</source>
        <translation>Se están comprimiendo sus listas para compartirlas.</translation>
    </message>
    <message>
        <source>Lists are being received from a peer.</source>
        <translation>Se están recibiendo listas de otro equipo.</translation>
    </message>
    <message>
        <source>Lists that came from a peer are being unpacked.</source>
        <translation>Se están descomprimiendo listas que llegaron de otro equipo.</translation>
    </message>
    <message>
        <source>Hits are being exported.</source>
        <translation>Se están exportando resultados.</translation>
    </message>
    <message>
        <source>A search</source>
        <translation>Una búsqueda</translation>
    </message>
    <message>
        <source>The rescan</source>
        <translation>La relectura</translation>
    </message>
    <message>
        <source>The web update</source>
        <translation>La actualización web</translation>
    </message>
    <message>
        <source>Unpacking the main data file</source>
        <translation>La descompresión del archivo de datos principal</translation>
    </message>
    <message>
        <source>Packing your lists</source>
        <translation>La compresión de sus listas</translation>
    </message>
    <message>
        <source>Getting lists</source>
        <translation>La obtención de listas</translation>
    </message>
    <message>
        <source>Unpacking received lists</source>
        <translation>La descompresión de las listas recibidas</translation>
    </message>
    <message>
        <source>The export</source>
        <translation>La exportación</translation>
    </message>
    <message>
        <source>Lists are already being received.</source>
        <translation>Ya se están recibiendo listas.</translation>
    </message>
    <message>
        <source>%1 can be started when that has ended.</source>
        <translation>%1 se puede iniciar cuando eso haya terminado.</translation>
    </message>
    <message>
        <source>Stopping...</source>
        <translation>Deteniendo...</translation>
    </message>
    <message>
        <source>row %1, column %2 of a source table</source>
        <translation>fila %1, columna %2 de una tabla de fuentes</translation>
    </message>
    <message>
        <source>The language of texts: German, English, French or Spanish.</source>
        <translation>El idioma de los textos: alemán, español, francés o inglés.</translation>
    </message>
    <message>
        <source>very long outlines</source>
        <translation>contornos muy largos</translation>
    </message>
    <message>
        <source>There are more than %1 files</source>
        <translation>Hay más de %1 archivos</translation>
    </message>
    <message>
        <source>comparing names and sizes</source>
        <translation>comparando nombres y tamaños</translation>
    </message>
    <message>
        <source>Files on one volume only: %1, of %2 altogether</source>
        <translation>Archivos en un solo volumen: %1, de %2 en total</translation>
    </message>
    <message>
        <source>Files with copies: %1. Copies beyond the first: %2, of %3 altogether</source>
        <translation>Archivos con copias: %1. Copias además de la primera: %2, de %3 en total</translation>
    </message>
    <message>
        <source>Left out, since their exact size is not known: %1</source>
        <translation>Omitidos, porque no se conoce su tamaño exacto: %1</translation>
    </message>
    <message>
        <source>Files that are on one volume only, instead of copies</source>
        <translation>Archivos que están en un solo volumen, en vez de copias</translation>
    </message>
    <message>
        <source>Write only how much it is, for each volume</source>
        <translation>Escribir solo cuánto es, por volumen</translation>
    </message>
    <message>
        <source>The same for each folder</source>
        <translation>Lo mismo por carpeta</translation>
    </message>
    <message>
        <source>Files must match WORDS by more than this percentage; 50</source>
        <translation>Los archivos deben superar este porcentaje; 50</translation>
    </message>
    <message>
        <source>Files of no bytes too</source>
        <translation>También los archivos vacíos</translation>
    </message>
    <message>
        <source>text (default), tsv, csv or json</source>
        <translation>text (predeterminado), tsv, csv o json</translation>
    </message>
    <message>
        <source>Start tsv and csv with the titles of the columns</source>
        <translation>Empezar tsv y csv con los títulos de las columnas</translation>
    </message>
    <message>
        <source>Write no more than N of them</source>
        <translation>No escribir más de N</translation>
    </message>
    <message>
        <source>What takes up most space</source>
        <translation>Lo que más espacio ocupa</translation>
    </message>
    <message>
        <source>How much each disk has that no other one has</source>
        <translation>Cuánto tiene cada disco que ningún otro tiene</translation>
    </message>
    <message>
        <source>Photos without a backup</source>
        <translation>Fotos sin copia de seguridad</translation>
    </message>
    <message>
        <source>Of these two listings</source>
        <translation>De estas dos listas</translation>
    </message>
    <message>
        <source>A volume is what a listing calls so; two listings never share one. With --single a file is shown if no other volume has it, even where its own volume has it twice. Which files are the same is always decided among all listings: with WORDS, groups are shown of which a search for these words finds one file. Without a LISTING, the user&apos;s own sources are looked through.</source>
        <translation>Un volumen es lo que una lista llama así; dos listas nunca comparten uno. Con --single se muestra un archivo si ningún otro volumen lo tiene, aunque el suyo lo tenga dos veces. Qué archivos son iguales se decide siempre entre todas las listas: con WORDS se muestran los grupos de los que una búsqueda de esas palabras encuentra un archivo. Sin LISTING se miran las fuentes propias del usuario.</translation>
    </message>
    <message>
        <source>Left out are files without a size of their own in the listing, which are counted at the end, and empty ones unless --empty is given. Listings hold the first 65 characters of a name; longer names that differ only behind them count as the same. A size that a listing has rounded cannot be told from one that is exact.</source>
        <translation>Se omiten los archivos sin tamaño propio en la lista, que se cuentan al final, y los vacíos si no se da --empty. Las listas contienen los primeros 65 caracteres de un nombre; los nombres más largos que solo difieren después cuentan como iguales. Un tamaño que una lista ha redondeado no se distingue de uno exacto.</translation>
    </message>
    <message>
        <source>Tsv and csv have a row for each place, json an object for each group; a group&apos;s name is that of its first file or folder. The last line on standard error has the sum. --limit counts groups, files or sums, whichever are written.</source>
        <translation>Tsv y csv tienen una fila por lugar, json un objeto por grupo; el nombre de un grupo es el de su primer archivo o de su primera carpeta. La última línea de la salida de errores tiene la suma. --limit cuenta grupos, archivos o sumas, según lo que se escriba.</translation>
    </message>
    <message numerus="yes">
        <source>%1 copies of %2: %3</source>
        <translation>
            <numerusform>%1 copia de %2: %3</numerusform>
            <numerusform>%1 copias de %2: %3</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 equal folders of %2 with %3 files: %4</source>
        <translation>
            <numerusform>%1 carpeta igual de %2 con %3 archivos: %4</numerusform>
            <numerusform>%1 carpetas iguales de %2 con %3 archivos: %4</numerusform>
        </translation>
    </message>
    <message>
        <source>there is no format &quot;%1&quot;; the formats are text, tsv, csv and json</source>
        <translation>no hay ningún formato «%1»; los formatos son text, tsv, csv y json</translation>
    </message>
    <message>
        <source>there are sums for volumes or for folders, not for both at once</source>
        <translation>hay sumas por volumen o por carpeta, no por ambos a la vez</translation>
    </message>
    <message>
        <source>%1 searched</source>
        <translation>%1 examinadas</translation>
    </message>
    <message>
        <source>Find copies of files, and what is on one volume only</source>
        <translation>Buscar copias, y lo que está en un solo volumen</translation>
    </message>
    <message>
        <source>%1 was changed while it was read. Please try again</source>
        <translation>%1 se cambió mientras se leía. Inténtelo de nuevo</translation>
    </message>
    <message>
        <source>the pattern may hold \n or \0 only at its end, and no other escapes than \t</source>
        <translation>el patrón solo puede contener \n o \0 al final, y ningún otro escape que \t</translation>
    </message>
    <message>
        <source>the pattern ends within a directive</source>
        <translation>el patrón termina dentro de una directiva</translation>
    </message>
    <message>
        <source>the pattern holds no path: %p, %P, or %h and %f</source>
        <translation>el patrón no contiene ninguna ruta: %p, %P, o %h y %f</translation>
    </message>
    <message>
        <source>&quot;%1&quot; says nothing of a column; an example is path=1,size=3,date=Modified</source>
        <translation>«%1» no dice nada de una columna; un ejemplo es path=1,size=3,date=Modified</translation>
    </message>
    <message>
        <source>there is no format &quot;%1&quot;; the formats are %2</source>
        <translation>no existe el formato «%1»; los formatos son %2</translation>
    </message>
    <message>
        <source>the value of --dates is dmy or mdy, not &quot;%1&quot;</source>
        <translation>el valor de --dates es dmy o mdy, no «%1»</translation>
    </message>
    <message>
        <source>there is no encoding &quot;%1&quot;; the encodings are %2</source>
        <translation>no existe la codificación «%1»; las codificaciones son %2</translation>
    </message>
    <message>
        <source>a list from standard input needs --label, the name of its volume</source>
        <translation>una lista de la entrada estándar necesita --label, el nombre de su volumen</translation>
    </message>
    <message>
        <source>%1 is there already; nothing was imported of %2</source>
        <translation>%1 ya existe; no se importó nada de %2</translation>
    </message>
    <message>
        <source>%1: %2 lines</source>
        <translation>%1: %2 líneas</translation>
    </message>
    <message>
        <source>%1 is no list of a known format; %2 says which of these it has: %3</source>
        <translation>%1 no es una lista de un formato conocido; %2 dice cuál de estos tiene: %3</translation>
    </message>
    <message>
        <source>%1 names no file and no folder; no listing was made</source>
        <translation>%1 no nombra ningún archivo ni carpeta; no se creó ninguna lista</translation>
    </message>
    <message>
        <source>%1: read as %2; %3 has %4 files, %5 folders</source>
        <translation>%1: leído como %2; %3 tiene %4 archivos, %5 carpetas</translation>
    </message>
    <message>
        <source>files without an exact size: %1</source>
        <translation>archivos sin tamaño exacto: %1</translation>
    </message>
    <message>
        <source>files without a date: %1</source>
        <translation>archivos sin fecha: %1</translation>
    </message>
    <message>
        <source>dates in which day and month may have changed places, left out (see %1): %2</source>
        <translation>fechas en las que día y mes pueden estar cambiados, omitidas (véase %1): %2</translation>
    </message>
    <message>
        <source>names that came again, of which the last one counts: %1</source>
        <translation>nombres que aparecieron de nuevo, de los que cuenta el último: %1</translation>
    </message>
    <message>
        <source>names that a listing cannot hold, left out: %1</source>
        <translation>nombres que una lista no puede contener, omitidos: %1</translation>
    </message>
    <message>
        <source>lines whose bytes are no UTF-8 (see %1): %2</source>
        <translation>líneas cuyos bytes no son UTF-8 (véase %1): %2</translation>
    </message>
    <message>
        <source>lines that were not understood: %1</source>
        <translation>líneas que no se entendieron: %1</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>línea %1: %2</translation>
    </message>
    <message>
        <source>import needs --output, the folder for the listings</source>
        <translation>import necesita --output, la carpeta para las listas nuevas</translation>
    </message>
    <message>
        <source>--label is for one list at a time</source>
        <translation>--label es para una sola lista</translation>
    </message>
    <message>
        <source>Make listings of lists that other programs wrote</source>
        <translation>Importar listas de otros programas</translation>
    </message>
    <message>
        <source>The folder for the listings</source>
        <translation>La carpeta para las listas nuevas</translation>
    </message>
    <message>
        <source>The lists&apos; format; default: as recognised</source>
        <translation>El formato de las listas; si no, el reconocido</translation>
    </message>
    <message>
        <source>The volume&apos;s name; default: the file&apos;s name</source>
        <translation>El nombre del volumen; si no, el del archivo</translation>
    </message>
    <message>
        <source>Where paths start that do not start with a slash</source>
        <translation>Dónde empiezan las rutas sin barra inicial</translation>
    </message>
    <message>
        <source>The pattern of find -printf</source>
        <translation>El patrón de find -printf</translation>
    </message>
    <message>
        <source>The columns of a table: path=1,size=3,date=Changed</source>
        <translation>Columnas de una tabla: path=1,size=3,date=Changed</translation>
    </message>
    <message>
        <source>The sizes of du are bytes (du -ab)</source>
        <translation>Los tamaños de du son bytes (du -ab)</translation>
    </message>
    <message>
        <source>Dates like 3/4/04: dmy (3 April) or mdy (4 March)</source>
        <translation>Fechas como 3/4/04: dmy (3 de abril) o mdy</translation>
    </message>
    <message>
        <source>When the list was made, for dates without a year</source>
        <translation>Cuándo se hizo la lista, para fechas sin año</translation>
    </message>
    <message>
        <source>Replace listings that are there</source>
        <translation>Sustituir las listas que existan</translation>
    </message>
    <message>
        <source>Report only what could not be read</source>
        <translation>Informar solo de lo que no se pudo leer</translation>
    </message>
    <message>
        <source>Import what ls -lR wrote of a CD</source>
        <translation>Importar lo que ls -lR escribió de un CD</translation>
    </message>
    <message>
        <source>List what is in an archive</source>
        <translation>Listar lo que hay en un archivo comprimido</translation>
    </message>
    <message>
        <source>A list in a form of your own</source>
        <translation>Una lista con formato propio</translation>
    </message>
    <message>
        <source>Writes a listing for each FILE into the folder of --output, under the file&apos;s name and with the ending .txt. The format is recognised from the first lines and reported on standard error. Lines that were not understood are counted there, and the first of them shown; the exit status is 2 then. A FILE may be a pipe; - is standard input.</source>
        <translation>Escribe una lista de este programa por cada FILE en la carpeta de --output, con el nombre del archivo y la terminación .txt. El formato se reconoce por las primeras líneas y se indica en stderr. Las líneas que no se entendieron se cuentan allí y se muestran las primeras; el estado de salida es entonces 2. Un FILE puede ser una tubería; - es la entrada estándar.</translation>
    </message>
    <message>
        <source>What a list does not tell exactly is left out: rounded sizes, sizes in blocks, dates without a year unless --made is given, and dates that may be of two days unless --dates is given or other dates of the list decide. Such files have the size -1 or the zero date.</source>
        <translation>Lo que una lista no dice con exactitud se omite: tamaños redondeados, tamaños en bloques, fechas sin año si falta --made, y fechas que pueden ser de dos días si no lo deciden --dates u otras fechas de la lista. Esos archivos tienen el tamaño -1 o la fecha cero.</translation>
    </message>
    <message>
        <source>import needs the lists to import</source>
        <translation>import necesita las listas que importar</translation>
    </message>
    <message>
        <source>A listing was changed while it was read. Please try again</source>
        <translation>Una lista se modificó mientras se leía. Inténtelo de nuevo</translation>
    </message>
    <message>
        <source>one of the two is no listing, since it is not plain text</source>
        <translation>una de las dos no es una lista, porque no es texto sin formato</translation>
    </message>
    <message>
        <source>comparing</source>
        <translation>comparando</translation>
    </message>
    <message>
        <source>Compared below %1 and %2, since they have no folder in common</source>
        <translation>Comparadas por debajo de %1 y %2, porque no tienen ninguna carpeta en común</translation>
    </message>
    <message>
        <source>Added: %1. Removed: %2. Changed: %3. Moved: %4. The same: %5</source>
        <translation>Añadidos: %1. Eliminados: %2. Modificados: %3. Movidos: %4. Iguales: %5</translation>
    </message>
    <message>
        <source>%1 (before: %2)</source>
        <translation>%1 (antes: %2)</translation>
    </message>
    <message>
        <source>Say what differs between listings, versions and folders</source>
        <translation>Mostrar las diferencias entre listas, versiones y carpetas</translation>
    </message>
    <message>
        <source>EARLIER is this version in the listing history</source>
        <translation>EARLIER es esta versión del historial de listas</translation>
    </message>
    <message>
        <source>EARLIER is the version of that day, such as 2004-03-31</source>
        <translation>EARLIER es la versión de ese día, por ejemplo 2004-03-31</translation>
    </message>
    <message>
        <source>Write only how much it is, for each folder</source>
        <translation>Escribir solo cuánto es, para cada carpeta</translation>
    </message>
    <message>
        <source>Write neither sums nor progress to standard error</source>
        <translation>No escribir sumas ni progreso en la salida de errores</translation>
    </message>
    <message>
        <source>What the last rescan changed</source>
        <translation>Lo que cambió el último examen</translation>
    </message>
    <message>
        <source>What has changed in the folder since then</source>
        <translation>Lo que ha cambiado desde entonces en la carpeta</translation>
    </message>
    <message>
        <source>What has changed since March</source>
        <translation>Lo que ha cambiado desde marzo</translation>
    </message>
    <message>
        <source>Whether a copy has everything</source>
        <translation>Si una copia lo tiene todo</translation>
    </message>
    <message>
        <source>EARLIER and LATER are listings, or folders, which are listed as they are now. Without LATER the listing EARLIER is compared with its newest complete version in the listing history, or with the one that --number or --on names. A listing in the data folder may be called by its description.</source>
        <translation>EARLIER y LATER son listas, o carpetas, que se listan como están ahora. Sin LATER, la lista EARLIER se compara con su versión completa más reciente del historial, o con la que indican --number o --on. Una lista de la carpeta de datos puede nombrarse por su descripción.</translation>
    </message>
    <message>
        <source>Lines start with + for a file that was added, - for one that was removed, * for one that has another size or date, and &gt; for one that was moved, with the place where it was in the line below. A file is taken to be moved if one with the same name and size is gone elsewhere; if there are several, one with the same date is preferred. The name of a volume counts only where a listing has more than one, and if the two have no folder in common, they are compared below the folders that have all of their files.</source>
        <translation>Las líneas empiezan por + si el archivo se añadió, por - si se eliminó, por * si tiene otro tamaño u otra fecha y por &gt; si se movió; la línea siguiente dice dónde estaba. Un archivo se considera movido si en otro lugar falta uno del mismo nombre y tamaño; si hay varios, se prefiere uno con la misma fecha. El nombre de un volumen solo cuenta si una lista tiene más de uno, y si las dos no tienen ninguna carpeta en común, se comparan por debajo de las carpetas que contienen todos sus archivos.</translation>
    </message>
    <message>
        <source>The exit status is 0 if there is no difference, 1 if there is one, and 2 if something went wrong. Listings hold the first 65 characters of a name, and dates to the second.</source>
        <translation>El estado de salida es 0 si no hay diferencias, 1 si las hay y 2 si algo salió mal. Las listas contienen los primeros 65 caracteres de un nombre, y las fechas con precisión de segundos.</translation>
    </message>
    <message>
        <source>there is neither a listing nor a folder %1</source>
        <translation>no hay ninguna lista ni carpeta %1</translation>
    </message>
    <message>
        <source>no version of %1 that is kept is as old as %2</source>
        <translation>ninguna versión guardada de %1 es tan antigua como %2</translation>
    </message>
    <message>
        <source>compare needs a listing or a folder</source>
        <translation>compare necesita una lista o una carpeta</translation>
    </message>
    <message>
        <source>the value of --on is a day such as 2004-03-31, not &quot;%1&quot;</source>
        <translation>el valor de --on es un día como 2004-03-31, no «%1»</translation>
    </message>
    <message>
        <source>compare does not know what to do with &quot;%1&quot;</source>
        <translation>compare no sabe qué hacer con «%1»</translation>
    </message>
    <message>
        <source>--number and --on both say which version is meant</source>
        <translation>--number y --on dicen ambas qué versión se quiere</translation>
    </message>
    <message>
        <source>looking for copies</source>
        <translation>búsqueda de copias</translation>
    </message>
    <message>
        <source>&amp;Copies...</source>
        <translation>&amp;Copias...</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Copias</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>Wasted</source>
        <translation>Desperdiciado</translation>
    </message>
    <message numerus="yes">
        <source>%1 (equal folders, %2 files)</source>
        <translation>
            <numerusform>%1 (carpetas iguales, %2 archivo)</numerusform>
            <numerusform>%1 (carpetas iguales, %2 archivos)</numerusform>
        </translation>
    </message>
    <message>
        <source>What wastes space</source>
        <translation>Lo que desperdicia espacio</translation>
    </message>
    <message>
        <source>What wastes space, by volume</source>
        <translation>Lo que desperdicia espacio, por volumen</translation>
    </message>
    <message>
        <source>What wastes space, by folder</source>
        <translation>Lo que desperdicia espacio, por carpeta</translation>
    </message>
    <message>
        <source>On one volume only</source>
        <translation>En un solo volumen</translation>
    </message>
    <message>
        <source>On one volume only, by volume</source>
        <translation>En un solo volumen, por volumen</translation>
    </message>
    <message>
        <source>On one volume only, by folder</source>
        <translation>En un solo volumen, por carpeta</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Buscar</translation>
    </message>
    <message>
        <source>&amp;Empty files, too</source>
        <translation>También archivos &amp;vacíos</translation>
    </message>
    <message>
        <source>Files that have the same name and the same size to the byte, in all listings together. Nothing is deleted or changed.</source>
        <translation>Archivos con el mismo nombre y el mismo tamaño, byte por byte, en todas las listas juntas. No se borra ni se cambia nada.</translation>
    </message>
    <message>
        <source>Words that limit what is shown</source>
        <translation>Palabras que limitan lo que se muestra</translation>
    </message>
    <message>
        <source>What is shown</source>
        <translation>Lo que se muestra</translation>
    </message>
    <message>
        <source>What can be shown</source>
        <translation>Lo que se puede mostrar</translation>
    </message>
    <message>
        <source>Only files with these words; empty for all</source>
        <translation>Solo archivos con estas palabras; vacío para todos</translation>
    </message>
    <message>
        <source>Only what a search for these words finds is shown. What has a copy is still looked up everywhere.</source>
        <translation>Solo se muestra lo que encuentra una búsqueda de estas palabras. Las copias se buscan igualmente en todas partes.</translation>
    </message>
    <message>
        <source>&amp;Words:</source>
        <translation>&amp;Palabras:</translation>
    </message>
    <message>
        <source>&amp;Show:</source>
        <translation>&amp;Mostrar:</translation>
    </message>
    <message>
        <source>Stopped. Only all listings together tell what has copies.</source>
        <translation>Detenido. Solo todas las listas juntas dicen qué tiene copias.</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>&amp;Detener</translation>
    </message>
    <message>
        <source>Comparing names and sizes</source>
        <translation>Comparando nombres y tamaños</translation>
    </message>
    <message>
        <source>Only the %1 largest of %2 rows are shown.</source>
        <translation>Solo se muestran las %1 filas mayores de %2.</translation>
    </message>
    <message>
        <source>and one more message</source>
        <translation>y un mensaje más</translation>
    </message>
    <message numerus="yes">
        <source>and %1 more messages</source>
        <translation>
            <numerusform>y %1 mensaje más</numerusform>
            <numerusform>y %1 mensajes más</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is not there now, or its listing does not say where.</source>
        <translation>%1 no está ahora, o su lista no dice dónde.</translation>
    </message>
    <message>
        <source>importing lists</source>
        <translation>la importación de listas</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importar...</translation>
    </message>
    <message>
        <source>names that hold a mark of listings, so that a search misreads their lines: %1</source>
        <translation>nombres con una marca de las listas, cuyas líneas una búsqueda lee mal: %1</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importar</translation>
    </message>
    <message>
        <source>Made by</source>
        <translation>Hecho por</translation>
    </message>
    <message>
        <source>Dates</source>
        <translation>Fechas</translation>
    </message>
    <message>
        <source>Encoding</source>
        <translation>Codificación</translation>
    </message>
    <message>
        <source>Made on</source>
        <translation>Hecho el</translation>
    </message>
    <message>
        <source>&amp;Add...</source>
        <translation>&amp;Añadir...</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>E&amp;xaminar...</translation>
    </message>
    <message>
        <source>du told b&amp;ytes</source>
        <translation>du en b&amp;ytes</translation>
    </message>
    <message>
        <source>Re&amp;place listings of the same name</source>
        <translation>&amp;Reemplazar listas del mismo nombre</translation>
    </message>
    <message>
        <source>&amp;Search in the listings from now on</source>
        <translation>&amp;Buscar en las listas desde ahora</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>As recognised</source>
        <translation>Según la lista</translation>
    </message>
    <message>
        <source>Day first</source>
        <translation>Primero el día</translation>
    </message>
    <message>
        <source>Month first</source>
        <translation>Primero el mes</translation>
    </message>
    <message>
        <source>Lists that other programs wrote, of a CD or of an archive, become listings. The lists themselves stay as they are.</source>
        <translation>Las listas que escribieron otros programas, de un CD o de un archivo comprimido, se convierten en listas del programa. Ellas mismas quedan como están.</translation>
    </message>
    <message>
        <source>Lists to import</source>
        <translation>Listas que se importan</translation>
    </message>
    <message>
        <source>The program that made the lists</source>
        <translation>El programa que hizo las listas</translation>
    </message>
    <message>
        <source>Pattern of find -printf, or columns of a table</source>
        <translation>Patrón de find -printf, o columnas de una tabla</translation>
    </message>
    <message>
        <source>Encoding of the lists</source>
        <translation>Codificación de las listas</translation>
    </message>
    <message>
        <source>Order of day and month</source>
        <translation>Orden del día y del mes</translation>
    </message>
    <message>
        <source>The day on which the lists were made</source>
        <translation>El día en que se hicieron las listas</translation>
    </message>
    <message>
        <source>Where paths start that do not start with /</source>
        <translation>Dónde empiezan las rutas que no empiezan con /</translation>
    </message>
    <message>
        <source>Name of the volume and of its listing</source>
        <translation>Nombre del volumen y de su lista</translation>
    </message>
    <message>
        <source>Folder for the listings</source>
        <translation>Carpeta de las listas</translation>
    </message>
    <message>
        <source>Browse for a folder</source>
        <translation>Examinar las carpetas</translation>
    </message>
    <message>
        <source>What has come of it</source>
        <translation>Lo que ha resultado</translation>
    </message>
    <message>
        <source>Programs that make lists</source>
        <translation>Programas que hacen listas</translation>
    </message>
    <message>
        <source>Encodings</source>
        <translation>Codificaciones</translation>
    </message>
    <message>
        <source>Orders of day and month</source>
        <translation>Órdenes del día y del mes</translation>
    </message>
    <message>
        <source>The pattern that find was given, such as %s %T@ %p\n, or which column of a table holds what, such as path=1,size=3</source>
        <translation>El patrón que recibió find, por ejemplo %s %T@ %p\n, o qué columna de una tabla contiene qué, por ejemplo path=1,size=3</translation>
    </message>
    <message>
        <source>A day such as 2004-01-15. ls leaves the year of recent dates out.</source>
        <translation>Un día como 2004-01-15. ls omite el año de las fechas recientes.</translation>
    </message>
    <message>
        <source>For paths that do not start with /, such as /media/cd</source>
        <translation>Para las rutas que no empiezan con /, por ejemplo /media/cd</translation>
    </message>
    <message>
        <source>Empty for the name of the list. For one list at a time.</source>
        <translation>Vacío para el nombre de la lista. Para una sola lista a la vez.</translation>
    </message>
    <message>
        <source>For the lists of du -ab. Without it the sizes of du are blocks, and left out.</source>
        <translation>Para las listas de du -ab. Si no, los tamaños de du son bloques y se omiten.</translation>
    </message>
    <message>
        <source>&amp;Made by:</source>
        <translation>&amp;Hecho por:</translation>
    </message>
    <message>
        <source>Patter&amp;n:</source>
        <translation>&amp;Patrón:</translation>
    </message>
    <message>
        <source>&amp;Encoding:</source>
        <translation>C&amp;odificación:</translation>
    </message>
    <message>
        <source>&amp;Dates:</source>
        <translation>&amp;Fechas:</translation>
    </message>
    <message>
        <source>Made &amp;on:</source>
        <translation>Hecho &amp;el:</translation>
    </message>
    <message>
        <source>Pat&amp;hs in:</source>
        <translation>Rutas e&amp;n:</translation>
    </message>
    <message>
        <source>&amp;Volume:</source>
        <translation>&amp;Volumen:</translation>
    </message>
    <message>
        <source>&amp;Listings to:</source>
        <translation>&amp;Listas en:</translation>
    </message>
    <message>
        <source>Stopped. The list that was being read has no listing.</source>
        <translation>Detenido. La lista que se estaba leyendo no se ha importado.</translation>
    </message>
    <message>
        <source>the value of %1 is a day such as 2004-01-15, not &quot;%2&quot;</source>
        <translation>el valor de %1 es un día como 2004-01-15, no «%2»</translation>
    </message>
    <message>
        <source>As the list tells</source>
        <translation>Según la lista</translation>
    </message>
    <message>
        <source>%1 is a file of the program; nothing was imported of %2</source>
        <translation>%1 es un archivo del programa; no se importó nada de %2</translation>
    </message>
    <message>
        <source>Whether 03/04/2004 is in March or in April. Other dates of the list may tell.</source>
        <translation>Si 03/04/2004 es en marzo o en abril. Quizá lo digan otras fechas de la lista.</translation>
    </message>
    <message>
        <source>&amp;Look into files at hand</source>
        <translation>&amp;Leer los archivos presentes</translation>
    </message>
    <message>
        <source>Reads the files in own folders that are there now, and takes those apart that hold different things. That takes as long as reading them all.</source>
        <translation>Lee los archivos de carpetas propias que están ahora y separa los que contienen cosas distintas. Tarda lo que se tarda en leerlos todos.</translation>
    </message>
    <message>
        <source>Looking into files: %1 of %2</source>
        <translation>Leyendo los archivos: %1 de %2</translation>
    </message>
    <message>
        <source>Looked into: %1, of %2 altogether. Files that hold something else in spite of the same name and size: %3. Not at hand, so judged by name and size: %4</source>
        <translation>Leídos: %1, %2 en total. Archivos que contienen otra cosa a pesar del mismo nombre y tamaño: %3. No presentes, juzgados por nombre y tamaño: %4</translation>
    </message>
    <message>
        <source>looking into files: %1 of %2</source>
        <translation>leyendo los archivos: %1 de %2</translation>
    </message>
    <message>
        <source>Look into the files that are at hand</source>
        <translation>Leer los archivos que están presentes</translation>
    </message>
    <message>
        <source>Files are the same that have the same name, whatever its case, and the same size to the byte. With --content, those in own folders that are there now are read, too, and are not the same where they hold something else; a file that is not at hand stays with the first of its group. The groups that waste most space come first, each with a line for every place. Folders that are equal as a whole, with all that is in them, are one group, and their files are not listed again. Their own names may differ.</source>
        <translation>Son iguales los archivos que tienen el mismo nombre, en mayúsculas o minúsculas, y el mismo tamaño hasta el último byte. Con --content se leen también los que están ahora en carpetas propias, y no son iguales si contienen otra cosa; un archivo que no está presente se queda con el primero de su grupo. Los grupos que más espacio desperdician van primero, cada uno con una línea por lugar. Las carpetas que son iguales enteras, con todo lo que contienen, forman un grupo, y sus archivos no se vuelven a enumerar. Sus propios nombres pueden ser distintos.</translation>
    </message>
    <message>
        <source>Co&amp;mpare...</source>
        <translation>Co&amp;mparar...</translation>
    </message>
    <message>
        <source>One of the two is no listing, since it is not plain text.</source>
        <translation>Una de las dos no es una lista, porque no es texto sin formato.</translation>
    </message>
    <message>
        <source>Left out, since they could not be read: %1</source>
        <translation>Omitidos porque no se pudieron leer: %1</translation>
    </message>
    <message>
        <source>%1 added</source>
        <translation>%1 añadidos</translation>
    </message>
    <message>
        <source>%1 removed</source>
        <translation>%1 quitados</translation>
    </message>
    <message>
        <source>%1 changed</source>
        <translation>%1 cambiados</translation>
    </message>
    <message>
        <source>%1 moved</source>
        <translation>%1 movidos</translation>
    </message>
    <message>
        <source>added</source>
        <translation>añadido</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>quitado</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>cambiado</translation>
    </message>
    <message>
        <source>moved</source>
        <translation>movido</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Cambio</translation>
    </message>
    <message>
        <source>Moved from</source>
        <translation>Movido desde</translation>
    </message>
    <message>
        <source>Size earlier</source>
        <translation>Tamaño antes</translation>
    </message>
    <message>
        <source>Date earlier</source>
        <translation>Fecha antes</translation>
    </message>
    <message>
        <source>Size later</source>
        <translation>Tamaño después</translation>
    </message>
    <message>
        <source>Date later</source>
        <translation>Fecha después</translation>
    </message>
    <message>
        <source>All changes</source>
        <translation>Todos los cambios</translation>
    </message>
    <message>
        <source>What was added</source>
        <translation>Lo que se añadió</translation>
    </message>
    <message>
        <source>What was removed</source>
        <translation>Lo que se quitó</translation>
    </message>
    <message>
        <source>What has changed</source>
        <translation>Lo que cambió</translation>
    </message>
    <message>
        <source>What was moved</source>
        <translation>Lo que se movió</translation>
    </message>
    <message>
        <source>&amp;Compare</source>
        <translation>&amp;Comparar</translation>
    </message>
    <message>
        <source>%1 (incomplete)</source>
        <translation>%1 (incompleta)</translation>
    </message>
    <message>
        <source>Cl&amp;ose</source>
        <translation>C&amp;errar</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Comparar</translation>
    </message>
    <message>
        <source>What came, went, changed and was moved from the earlier to the later one. Nothing is deleted or changed.</source>
        <translation>Lo que se añadió, se quitó, cambió y se movió del estado anterior al posterior. No se borra ni se cambia nada.</translation>
    </message>
    <message>
        <source>What is compared: the earlier side</source>
        <translation>Qué se compara: el lado anterior</translation>
    </message>
    <message>
        <source>Which state of the earlier side</source>
        <translation>Qué estado del lado anterior</translation>
    </message>
    <message>
        <source>What is compared: the later side</source>
        <translation>Qué se compara: el lado posterior</translation>
    </message>
    <message>
        <source>Which state of the later side</source>
        <translation>Qué estado del lado posterior</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Cambios</translation>
    </message>
    <message>
        <source>What can be chosen</source>
        <translation>Lo que se puede elegir</translation>
    </message>
    <message>
        <source>&amp;Earlier:</source>
        <translation>&amp;Antes:</translation>
    </message>
    <message>
        <source>State ea&amp;rlier:</source>
        <translation>Estad&amp;o antes:</translation>
    </message>
    <message>
        <source>&amp;Later:</source>
        <translation>Des&amp;pués:</translation>
    </message>
    <message>
        <source>State l&amp;ater:</source>
        <translation>Estado despué&amp;s:</translation>
    </message>
    <message>
        <source>There is nothing to compare yet.</source>
        <translation>Todavía no hay nada que comparar.</translation>
    </message>
    <message>
        <source>the listing as it is</source>
        <translation>la lista tal como está</translation>
    </message>
    <message>
        <source>the folder as it is now</source>
        <translation>la carpeta tal como está ahora</translation>
    </message>
    <message>
        <source>Stopped. What has changed is only known at the end.</source>
        <translation>Detenido. Lo que ha cambiado solo se sabe al final.</translation>
    </message>
    <message>
        <source>Comparing</source>
        <translation>Comparando</translation>
    </message>
    <message>
        <source>plan needs the words to find, in one argument, or - for a list</source>
        <translation>plan necesita las palabras que se buscan, en un solo argumento, o - para una lista</translation>
    </message>
    <message>
        <source>standard input can be the list or a listing, not both</source>
        <translation>la entrada estándar puede ser la lista de deseos o una lista del catálogo, no ambas</translation>
    </message>
    <message>
        <source>%1 can be read once only, and a plan for words needs to read it twice</source>
        <translation>%1 solo se puede leer una vez, y un plan para palabras tiene que leerlo dos veces</translation>
    </message>
    <message>
        <source>there is nothing to copy, so no script</source>
        <translation>no hay nada que copiar, así que no hay guion</translation>
    </message>
    <message>
        <source>Not found: %1</source>
        <translation>No encontrados: %1</translation>
    </message>
    <message>
        <source>Volumes to insert: %1. To copy: %2</source>
        <translation>Volúmenes por insertar: %1. Por copiar: %2</translation>
    </message>
    <message>
        <source>There is no way with fewer volumes</source>
        <translation>No se puede con menos volúmenes</translation>
    </message>
    <message>
        <source>There may be a way with fewer volumes: more than %1 have files in common, so each next one was chosen greedily, for having most of what was left</source>
        <translation>Quizá se pueda con menos volúmenes: más de %1 tienen archivos en común, así que cada vez se eligió el que más tenía de lo que faltaba (método voraz)</translation>
    </message>
    <message>
        <source>Not found:</source>
        <translation>No encontrados:</translation>
    </message>
    <message>
        <source>Not there: %1</source>
        <translation>No está: %1</translation>
    </message>
    <message>
        <source>The folder where it is now (nothing: leave it out):</source>
        <translation>La carpeta en la que está ahora (nada: omitirlo):</translation>
    </message>
    <message>
        <source>Nobody answers. Please save this script and start it in a terminal.</source>
        <translation>Nadie responde. Guarde este guion e inícielo en una terminal.</translation>
    </message>
    <message>
        <source>None of the files is in %1.</source>
        <translation>Ninguno de los archivos está en %1.</translation>
    </message>
    <message>
        <source>rsync is needed, and is not installed.</source>
        <translation>Hace falta rsync, y no está instalado.</translation>
    </message>
    <message>
        <source>Not everything was copied.</source>
        <translation>No se ha copiado todo.</translation>
    </message>
    <message>
        <source>Please insert volume %1 of %2: %3. It was listed at %4; %5 to copy.</source>
        <translation>Inserte el volumen %1 de %2: %3. Se catalogó en %4; por copiar: %5.</translation>
    </message>
    <message>
        <source>Say which volumes to fetch for files that are wanted</source>
        <translation>Decir qué volúmenes hay que traer para unos archivos</translation>
    </message>
    <message>
        <source>text (default) or json</source>
        <translation>text (predeterminado) o json</translation>
    </message>
    <message>
        <source>Write a script that copies the files with rsync</source>
        <translation>Escribir un guion que copia con rsync</translation>
    </message>
    <message>
        <source>Where that script copies them</source>
        <translation>Adónde copia ese guion</translation>
    </message>
    <message>
        <source>The fewest disks for all hits of a search</source>
        <translation>Los mínimos discos para todos los resultados de una búsqueda</translation>
    </message>
    <message>
        <source>A script that asks for each disk and copies; start it with: sh fetch.sh</source>
        <translation>Un guion que pide cada disco y copia; se inicia con: sh fetch.sh</translation>
    </message>
    <message>
        <source>Only for some hits</source>
        <translation>Solo para algunos resultados</translation>
    </message>
    <message>
        <source>For a list, one name a line</source>
        <translation>Para una lista, un nombre por línea</translation>
    </message>
    <message>
        <source>Writes the fewest volumes that hold all wanted files, in the order in which to insert them, with what to copy from each. Wanted are the hits of a search for WORDS, as find makes it; or, with - in place of WORDS, the files of a list on standard input: a line each, with JSON as find writes it, or with a name. A name alone means every file of that name.</source>
        <translation>Escribe el mínimo de volúmenes que contienen todos los archivos deseados, en el orden en que hay que insertarlos, con lo que se copia de cada uno. Se desean los resultados de una búsqueda de WORDS, como la hace find; o, con - en lugar de WORDS, los archivos de una lista de la entrada estándar: una línea cada uno, con JSON como lo escribe find, o con un nombre. Un nombre solo significa todos los archivos de ese nombre.</translation>
    </message>
    <message>
        <source>Files are the same that have the same name, whatever its case, and the same size to the byte; nobody looks into them, and any one will do. A file without a size of its own in the listing is the same as no other. Listings hold the first 65 characters of a name; longer names that differ only behind them count as the same.</source>
        <translation>Son iguales los archivos que tienen el mismo nombre, en mayúsculas o minúsculas, y el mismo tamaño hasta el último byte; nadie mira dentro de ellos, y cualquiera sirve. Un archivo sin tamaño propio en la lista no es igual a ningún otro. Las listas contienen los primeros 65 caracteres de un nombre; los nombres más largos que solo difieren después cuentan como iguales.</translation>
    </message>
    <message>
        <source>A volume is what a listing calls so; two listings never share one. What only one volume has, and what one has that another has too, is settled first. Where of the rest up to 20 volumes have files in common, all combinations are tried, and there is no way with fewer. Of more, each next one is chosen greedily, for having most of what is left; the plan says so, and there may be a way with fewer.</source>
        <translation>Un volumen es lo que una lista llama así; dos listas nunca comparten uno. Lo que solo un volumen tiene, y lo que uno tiene y otro también, se decide primero. Donde del resto hasta 20 volúmenes tienen archivos en común, se prueban todas las combinaciones, y no se puede con menos. De más se elige cada vez el que más tiene de lo que falta; el plan lo dice, y quizá se pueda con menos.</translation>
    </message>
    <message>
        <source>With words, listings are read twice, so they cannot come from a pipe. The script is for any POSIX shell. It asks for each volume and for the folder where it is now, finds the listing&apos;s folders there, and copies into a folder for each volume. A file that is not there is told, and the others are copied.</source>
        <translation>Con palabras, las listas se leen dos veces, así que no pueden venir de una tubería. El guion es para cualquier shell POSIX. Pide cada volumen y la carpeta en la que está ahora, encuentra allí las carpetas de la lista y copia a una carpeta por volumen. Un archivo que no está se nombra, y los demás se copian.</translation>
    </message>
    <message>
        <source>there is no format &quot;%1&quot;; the formats are text and json</source>
        <translation>no hay ningún formato «%1»; los formatos son text y json</translation>
    </message>
    <message>
        <source>--script and --to FOLDER go together</source>
        <translation>--script y --to CARPETA van juntos</translation>
    </message>
    <message>
        <source>a plan is written in a format or as a script, not as both</source>
        <translation>un plan se escribe en un formato o como guion, no de ambas maneras</translation>
    </message>
    <message>
        <source>Only the first %1 of %2 rows are shown.</source>
        <translation>Solo se muestran las primeras %1 de %2 filas.</translation>
    </message>
    <message>
        <source>If it is dumb, find colours nothing either.</source>
        <translation>Si es dumb, find tampoco colorea nada.</translation>
    </message>
    <message>
        <source>there are no folders of your own yet; quorvin-cli sources add FOLDER adds one</source>
        <translation>todavía no hay carpetas propias; quorvin-cli sources add CARPETA añade una</translation>
    </message>
    <message>
        <source>there is nothing to search yet. Name listings after the words, or add folders or lists with quorvin-cli sources add</source>
        <translation>todavía no hay dónde buscar. Nombre listas después de las palabras, o añada carpetas o listas con quorvin-cli sources add</translation>
    </message>
    <message>
        <source>%1 is a database of plocate, which has to be installed to read it</source>
        <translation>%1 es una base de datos de plocate, que tiene que estar instalado para leerla</translation>
    </message>
    <message>
        <source>plocate could not read %1: %2</source>
        <translation>plocate no pudo leer %1: %2</translation>
    </message>
    <message>
        <source>%1 is a folder, not a listing; quorvin-cli index makes a listing of a folder</source>
        <translation>%1 es una carpeta, no una lista; quorvin-cli index hace una lista de una carpeta</translation>
    </message>
    <message>
        <source>the titles of the columns are written or not; --header and --no-header contradict</source>
        <translation>los títulos de las columnas se escriben o no; --header y --no-header se contradicen</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>%1 was not replaced, since it could not be kept in the listing history: %2</source>
        <translation>%1 no se sustituyó, porque su contenido no se pudo conservar en el historial de listas: %2</translation>
    </message>
    <message>
        <source>The lists&apos; encoding, such as cp850; default: utf-8</source>
        <translation>Codificación de las listas, como cp850; si no, utf-8</translation>
    </message>
    <message>
        <source>the system does not know the encoding &quot;%1&quot;</source>
        <translation>el sistema no conoce la codificación «%1»</translation>
    </message>
    <message>
        <source>not recognised</source>
        <translation>no reconocida</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Newest</source>
        <translation>Más reciente</translation>
    </message>
    <message>
        <source>Listed</source>
        <translation>Listado</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Libre</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message numerus="yes">
        <source>%1 days ago</source>
        <translation>
            <numerusform>hace %1 día</numerusform>
            <numerusform>hace %1 días</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 months ago</source>
        <translation>
            <numerusform>hace %1 mes</numerusform>
            <numerusform>hace %1 meses</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 years ago</source>
        <translation>
            <numerusform>hace %1 año</numerusform>
            <numerusform>hace %1 años</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 volume</source>
        <translation>%1 volumen</translation>
    </message>
    <message numerus="yes">
        <source>%1 volumes</source>
        <translation>
            <numerusform>%1 volumen</numerusform>
            <numerusform>%1 volúmenes</numerusform>
        </translation>
    </message>
    <message>
        <source>Listings of own folders, the lists of sources, the listing history and notes on volumes, unless another folder is chosen in the window under File, Options, or the program was copied somewhere as it is: then they are beside it. quorvin-cli sources names the folder.</source>
        <translation>Las listas de las carpetas propias, las listas de fuentes, el historial de listas y las notas sobre volúmenes, salvo que en la ventana se elija otra carpeta en Archivo, Opciones, o que el programa se haya copiado tal cual en algún sitio: entonces están junto a él. quorvin-cli sources nombra la carpeta.</translation>
    </message>
    <message>
        <source>volumes cannot be sorted by &quot;%1&quot;, only by volume, files, size, newest, listed, free or note</source>
        <translation>los volúmenes no se ordenan por &quot;%1&quot;, solo por volume, files, size, newest, listed, free o note</translation>
    </message>
    <message>
        <source>--note goes with the name of a volume</source>
        <translation>--note va con el nombre de un volumen</translation>
    </message>
    <message>
        <source>there is no volume &quot;%1&quot;; quorvin-cli volumes shows those that there are</source>
        <translation>no hay ningún volumen &quot;%1&quot;; quorvin-cli volumes muestra los que hay</translation>
    </message>
    <message>
        <source>several listings have a volume &quot;%1&quot;; name one of them behind it: %2</source>
        <translation>varias listas tienen un volumen &quot;%1&quot;; nombre una de ellas detrás: %2</translation>
    </message>
    <message>
        <source>%1 is no file, so nothing can be noted on its volumes</source>
        <translation>%1 no es un archivo, así que no se puede anotar nada sobre sus volúmenes</translation>
    </message>
    <message>
        <source>Show what is on each volume, or note where it is kept</source>
        <translation>Mostrar qué hay en cada volumen, o anotar dónde está</translation>
    </message>
    <message>
        <source>volume, files, size, newest, listed, free or note</source>
        <translation>volume, files, size, newest, listed, free o note</translation>
    </message>
    <message>
        <source>Note this on the volume named in place of WORDS</source>
        <translation>Anotar esto del volumen nombrado en lugar de WORDS</translation>
    </message>
    <message>
        <source>The fullest one first</source>
        <translation>El más lleno primero</translation>
    </message>
    <message>
        <source>Which disks have photos, and how many</source>
        <translation>Qué discos tienen fotos, y cuántas</translation>
    </message>
    <message>
        <source>Note where a disk is kept</source>
        <translation>Anotar dónde se guarda un disco</translation>
    </message>
    <message>
        <source>Take the note away</source>
        <translation>Quitar la nota</translation>
    </message>
    <message>
        <source>Writes a line for each volume of the listings: how many files it has and their bytes, when the newest of them was changed, how long ago its listing was written, and, where the folder of an own source is there now, how much is free on its drive. Behind the volume&apos;s name stands your own note. With WORDS, only files count that a search for these words finds. Without a LISTING, the user&apos;s own sources are looked through.</source>
        <translation>Escribe una línea por cada volumen de las listas: cuántos archivos tiene y sus bytes, cuándo se modificó el más reciente, cuánto hace que se escribió su lista y, si la carpeta de una fuente propia está ahora, cuánto hay libre en su unidad. Detrás del nombre del volumen va su propia nota. Con WORDS, solo cuentan los archivos que encuentra una búsqueda de estas palabras. Sin LISTING, se recorren las fuentes del usuario.</translation>
    </message>
    <message>
        <source>A volume is what a listing calls so; two listings never share one. Bytes and dates are those of files with a size of their own in the listing. Volumes without what they are sorted by come last. In json, the newest file has its folder and name, and what is not known has no key.</source>
        <translation>Un volumen es lo que una lista llama así; dos listas nunca comparten uno. Bytes y fechas son los de los archivos con tamaño propio en la lista. Los volúmenes que no tienen aquello por lo que se ordena van al final. En json, el archivo más reciente tiene su carpeta y su nombre, y lo que no se conoce no tiene clave.</translation>
    </message>
    <message>
        <source>--note writes nothing but keeps TEXT, which replaces an earlier note; it is shown in the window too. Where several listings have a volume of that name, name the listing behind it.</source>
        <translation>--note no escribe nada sino que guarda TEXT, que sustituye a una nota anterior; también se muestra en la ventana. Si varias listas tienen un volumen de ese nombre, nombre la lista detrás.</translation>
    </message>
    <message>
        <source>A note has at most %1 characters</source>
        <translation>Una nota tiene como máximo %1 caracteres</translation>
    </message>
    <message>
        <source>Note: %1</source>
        <translation>Nota: %1</translation>
    </message>
    <message>
        <source>looking at volumes</source>
        <translation>revisión de los volúmenes</translation>
    </message>
    <message>
        <source>&amp;Volumes...</source>
        <translation>&amp;Volúmenes...</translation>
    </message>
    <message>
        <source>Note on %1</source>
        <translation>Nota sobre %1</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Mostrar</translation>
    </message>
    <message>
        <source>Volumes</source>
        <translation>Volúmenes</translation>
    </message>
    <message>
        <source>Words that limit what is counted</source>
        <translation>Palabras que limitan lo que se cuenta</translation>
    </message>
    <message>
        <source>Edit &amp;Note</source>
        <translation>Editar la &amp;nota</translation>
    </message>
    <message>
        <source>Show &amp;Folder</source>
        <translation>Mostrar la &amp;carpeta</translation>
    </message>
    <message>
        <source>Stopped. What is on a volume is known when its listing has been read.</source>
        <translation>Detenido. Lo que hay en un volumen se sabe cuando se ha leído su lista.</translation>
    </message>
    <message>
        <source>%1 is not there now. Note: %2</source>
        <translation>%1 no está ahora. Nota: %2</translation>
    </message>
    <message>
        <source>The note was not kept: %1</source>
        <translation>La nota no se guardó: %1</translation>
    </message>
    <message>
        <source>the name of %1 is no text</source>
        <translation>el nombre de %1 no es texto</translation>
    </message>
    <message>
        <source>there are no checksums of %1; quorvin-cli index --checksums makes them</source>
        <translation>no hay sumas de comprobación de %1; quorvin-cli index --checksums las toma</translation>
    </message>
    <message>
        <source>%1 does not tell which folder it is of; please name the folder</source>
        <translation>%1 no dice de qué carpeta es; indique la carpeta</translation>
    </message>
    <message>
        <source>Put the SHA-256 of each file beside it; see verify</source>
        <translation>Poner al lado el SHA-256 de cada archivo; vea verify</translation>
    </message>
    <message>
        <source>The checksums are in a file beside the listing, with .sha256 behind its name; sha256sum -c reads it in the folder. When it is made again, a file that has the size and date that the listing told until then keeps its checksum and is not read.</source>
        <translation>Las sumas de comprobación están en un archivo junto a la lista, con .sha256 tras su nombre; sha256sum -c lo lee en la carpeta. Cuando se hace de nuevo, un archivo que tiene el tamaño y la fecha que decía la lista hasta entonces conserva su suma y no se lee.</translation>
    </message>
    <message>
        <source>find, copies, plan and volumes: there were hits. compare: nothing differs. verify: all files are as they were. Others: all was done.</source>
        <translation>find, copies, plan y volumes: hubo resultados. compare: nada difiere. verify: todos los archivos están como estaban. Otros: se hizo todo.</translation>
    </message>
    <message>
        <source>find, copies, plan and volumes: there were none. compare: something differs. verify: some files are not as they were. history: there is no earlier version.</source>
        <translation>find, copies, plan y volumes: no hubo ninguno. compare: algo difiere. verify: algunos archivos no están como estaban. history: no hay versión anterior.</translation>
    </message>
    <message>
        <source>No checksum: %1</source>
        <translation>Sin suma de comprobación: %1</translation>
    </message>
    <message>
        <source>checksums: %1 of %2 files, %3 of %4</source>
        <translation>sumas: %1 de %2 archivos, %3 de %4</translation>
    </message>
    <message>
        <source>verify needs a listing, or the description of an own folder</source>
        <translation>verify necesita una lista, o la descripción de una carpeta propia</translation>
    </message>
    <message>
        <source>the commands are find, copies, compare, plan, volumes, index, verify, import, refresh, sources, history and cache</source>
        <translation>las órdenes son find, copies, compare, plan, volumes, index, verify, import, refresh, sources, history y cache</translation>
    </message>
    <message>
        <source>--checksums goes with --output: the checksums are put beside the listing</source>
        <translation>--checksums va con --output: las sumas se ponen junto a la lista</translation>
    </message>
    <message>
        <source>--folders-only lists no files that --checksums could be of</source>
        <translation>--folders-only no lista archivos de los que --checksums pudiera ser</translation>
    </message>
    <message>
        <source>verify does not know what to do with &quot;%1&quot;</source>
        <translation>verify no sabe qué hacer con «%1»</translation>
    </message>
    <message>
        <source>less than a minute left</source>
        <translation>menos de un minuto</translation>
    </message>
    <message numerus="yes">
        <source>%1 minutes left</source>
        <translation>
            <numerusform>falta %1 minuto</numerusform>
            <numerusform>faltan %1 minutos</numerusform>
        </translation>
    </message>
    <message>
        <source>Stopped. The next verification of these checksums goes on here.</source>
        <translation>Detenido. La próxima comprobación de estas sumas sigue aquí.</translation>
    </message>
    <message>
        <source>%1 of %2 files, %3 of %4</source>
        <translation>%1 de %2 archivos, %3 de %4</translation>
    </message>
    <message>
        <source>Of these, %1 files were read before it was stopped. --restart reads them again.</source>
        <translation>De ellos, %1 archivos se leyeron antes de detenerse. --restart los lee de nuevo.</translation>
    </message>
    <message>
        <source>Lines of the checksums that were not understood: %1</source>
        <translation>Líneas de las sumas que no se entendieron: %1</translation>
    </message>
    <message>
        <source>As they were: %1. Rotten: %2. Lost: %3. Changed: %4. Added: %5. Not read: %6</source>
        <translation>Como estaban: %1. Estropeados: %2. Perdidos: %3. Cambiados: %4. Añadidos: %5. No leídos: %6</translation>
    </message>
    <message>
        <source>Say which files do not hold any more what they held</source>
        <translation>Decir qué archivos ya no contienen lo que contenían</translation>
    </message>
    <message>
        <source>Begin again, also after one that was stopped</source>
        <translation>Empezar de nuevo, también tras una que se detuvo</translation>
    </message>
    <message>
        <source>Write an object for each of them, as JSON</source>
        <translation>Escribir un objeto para cada uno, como JSON</translation>
    </message>
    <message>
        <source>Take the checksums</source>
        <translation>Tomar las sumas</translation>
    </message>
    <message>
        <source>Read the disk again, years later</source>
        <translation>Leer el disco de nuevo, años después</translation>
    </message>
    <message>
        <source>Where it is mounted elsewhere</source>
        <translation>Si está montado en otro lugar</translation>
    </message>
    <message>
        <source>Holds the files of a folder against the checksums beside its LISTING, which index --checksums has made. An own folder may be called by its description. Lines start with ! for a file that has the size and date of the listing and holds something else, so that its medium has lost it; - for one that is gone; * for one that has another size or date; + for one that has no checksum; and ? for one that cannot be read, with the reason behind it.</source>
        <translation>Compara los archivos de una carpeta con las sumas junto a su LISTING, que tomó index --checksums. Una carpeta propia puede llamarse por su descripción. Las líneas empiezan por ! para un archivo que tiene el tamaño y la fecha de la lista y contiene otra cosa, de modo que su soporte lo ha perdido; - para uno que ya no está; * para uno de otro tamaño o fecha; + para uno sin suma; y ? para uno que no se puede leer, con el motivo detrás.</translation>
    </message>
    <message>
        <source>A file with another size or date was changed on purpose, and is not read. Where the listing does not tell these, one that holds something else counts as changed.</source>
        <translation>Un archivo de otro tamaño o fecha se cambió a propósito, y no se lee. Donde la lista no los dice, uno que contiene otra cosa cuenta como cambiado.</translation>
    </message>
    <message>
        <source>One that is stopped, by Ctrl-C or by a crash, goes on where it was when it is started again. The exit status is 0 if all files are as they were, 1 if some are not, and 2 if something could not be read.</source>
        <translation>Una comprobación detenida, con Ctrl-C o por una caída, sigue donde estaba cuando se inicia de nuevo. El código de salida es 0 si todos los archivos están como estaban, 1 si algunos no, y 2 si algo no se pudo leer.</translation>
    </message>
    <message>
        <source>Show what is searched, or change it: add, remove, move</source>
        <translation>Mostrar qué se busca, o cambiarlo: add, remove, move</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Imágenes</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documentos</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>Archivadores</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>Programas</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Otros</translation>
    </message>
    <message>
        <source>No date</source>
        <translation>Sin fecha</translation>
    </message>
    <message>
        <source>Up to %1</source>
        <translation>Hasta %1</translation>
    </message>
    <message>
        <source>From %1 on</source>
        <translation>Desde %1</translation>
    </message>
    <message>
        <source>Files right here</source>
        <translation>Archivos de aquí mismo</translation>
    </message>
    <message>
        <source>%1, %2, %3%. Mostly %4, %5</source>
        <translation>%1, %2, %3 %. Sobre todo %4, %5</translation>
    </message>
    <message>
        <source>&amp;Read Again</source>
        <translation>&amp;Leer de nuevo</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>S&amp;ubir</translation>
    </message>
    <message>
        <source>Space Map</source>
        <translation>Mapa del espacio</translation>
    </message>
    <message>
        <source>Space Map of %1</source>
        <translation>Mapa del espacio de %1</translation>
    </message>
    <message>
        <source>Space map</source>
        <translation>Mapa del espacio</translation>
    </message>
    <message>
        <source>What the colours show</source>
        <translation>Lo que muestran los colores</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Año</translation>
    </message>
    <message>
        <source>C&amp;olours:</source>
        <translation>C&amp;olores:</translation>
    </message>
    <message>
        <source>&amp;Search Here</source>
        <translation>Buscar &amp;aquí</translation>
    </message>
    <message>
        <source>Stopped. The map is drawn when everything has been read.</source>
        <translation>Detenido. El mapa se dibuja cuando se ha leído todo.</translation>
    </message>
    <message>
        <source>All volumes</source>
        <translation>Todos los volúmenes</translation>
    </message>
    <message>
        <source>There is nothing that takes up space.</source>
        <translation>No hay nada que ocupe espacio.</translation>
    </message>
    <message>
        <source>Space &amp;Map</source>
        <translation>Mapa del &amp;espacio</translation>
    </message>
    <message>
        <source>Empty for all files</source>
        <translation>Vacío para todos los archivos</translation>
    </message>
    <message>
        <source>Shows as rectangles what takes up space on all volumes</source>
        <translation>Muestra en rectángulos lo que ocupa espacio en todos los volúmenes</translation>
    </message>
    <message>
        <source>planning what to fetch</source>
        <translation>la planificación de lo que hay que traer</translation>
    </message>
    <message>
        <source>Fetch P&amp;lan...</source>
        <translation>P&amp;lan de recogida...</translation>
    </message>
    <message>
        <source>A plan can be made for at most %1 hits.</source>
        <translation>Se puede hacer un plan para %1 resultados como máximo.</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>&amp;Plan Again</source>
        <translation>&amp;Planear de nuevo</translation>
    </message>
    <message>
        <source>Save Te&amp;xt...</source>
        <translation>Guardar &amp;texto...</translation>
    </message>
    <message>
        <source>Save &amp;Script...</source>
        <translation>Guardar &amp;script...</translation>
    </message>
    <message>
        <source>Fetch Plan</source>
        <translation>Plan de recogida</translation>
    </message>
    <message>
        <source>Volumes to insert, and what to copy from them</source>
        <translation>Volúmenes que insertar, y qué copiar de ellos</translation>
    </message>
    <message>
        <source>A script for a terminal that asks for each volume and copies its files with rsync</source>
        <translation>Un script para un terminal, que pide cada volumen y copia sus archivos con rsync</translation>
    </message>
    <message>
        <source>Insert these volumes, one after another:</source>
        <translation>Inserte estos volúmenes, uno tras otro:</translation>
    </message>
    <message>
        <source>Stopped. Only all listings together tell which volumes are needed.</source>
        <translation>Detenido. Solo todas las listas juntas dicen qué volúmenes hacen falta.</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>No encontrados</translation>
    </message>
    <message>
        <source>Save Plan</source>
        <translation>Guardar el plan</translation>
    </message>
    <message>
        <source>Save Script</source>
        <translation>Guardar el script</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Guardado: %1</translation>
    </message>
    <message>
        <source>Nothing was saved: %1</source>
        <translation>No se guardó nada: %1</translation>
    </message>
    <message>
        <source>A search is for a folder. Choose one in the volume.</source>
        <translation>Una búsqueda es de una carpeta. Elija una en el volumen.</translation>
    </message>
    <message>
        <source>Changed or rotten: %1. The earlier listing was made after its checksums, so it does not tell.</source>
        <translation>Cambiado o estropeado: %1. La lista anterior se hizo después de sus sumas de comprobación, así que no lo dice.</translation>
    </message>
    <message>
        <source>The listing was made after the checksums, so it does not tell rot from change; quorvin-cli index --checksums renews both.</source>
        <translation>La lista se hizo después de las sumas de comprobación, así que no dice qué se ha estropeado y qué ha cambiado; quorvin-cli index --checksums renueva ambas.</translation>
    </message>
</context>
<context>
    <name>quorvin::Texts::Texts</name>
    <message>
        <source>Being looked for...</source>
        <translation>Buscando...</translation>
    </message>
</context>
</TS>
