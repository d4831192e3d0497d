<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
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
        <translation>Usage&#xa0;: quorvin [LISTING]
        quorvin --search TEXT | --folder FOLDER | --rescan | --manual
Ouvre la fenêtre où l’on cherche dans les listes. Une liste (LISTING) a ses propres réglages et dossiers.

  --search TEXT    chercher TEXT
  --folder FOLDER  chercher dans FOLDER, catalogué d’abord si vous êtes d’accord
  --rescan         relire les dossiers de recherche locaux
  --manual         ouvrir le manuel
  --help           afficher cette aide et terminer
  --version        afficher la version et terminer

quorvin-cli fait les mêmes recherches dans le terminal.
</translation>
    </message>
    <message>
        <source>Run-time error: Out of memory</source>
        <translation>Erreur d’exécution&#xa0;: mémoire insuffisante</translation>
    </message>
    <message>
        <source>Run-time error: %1</source>
        <translation>Erreur d’exécution&#xa0;: %1</translation>
    </message>
    <message>
        <source>This happened while %1.</source>
        <translation>Cela s’est produit pendant l’opération suivante&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Try: %1</source>
        <translation>Essayez&#xa0;: %1</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>option %1 inconnue</translation>
    </message>
    <message>
        <source>the option %1 needs a value</source>
        <translation>il manque une valeur à l’option %1</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Question</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>handling an event of the window system</source>
        <translation>traitement d’un événement du système de fenêtres</translation>
    </message>
    <message>
        <source>The rescan has ended</source>
        <translation>La relecture est terminée</translation>
    </message>
    <message>
        <source>editing the local folders</source>
        <translation>modification des dossiers locaux</translation>
    </message>
    <message>
        <source>editing the offline lists</source>
        <translation>modification des listes hors ligne</translation>
    </message>
    <message>
        <source>refreshing the local lists</source>
        <translation>actualisation des listes locales</translation>
    </message>
    <message>
        <source>showing the listing history</source>
        <translation>affichage de l’historique des listes</translation>
    </message>
    <message>
        <source>exporting hits</source>
        <translation>exportation de résultats</translation>
    </message>
    <message>
        <source>editing the options</source>
        <translation>modification des options</translation>
    </message>
    <message>
        <source>sharing lists</source>
        <translation>partage des listes</translation>
    </message>
    <message>
        <source>getting lists from a peer</source>
        <translation>obtention des listes d’un pair</translation>
    </message>
    <message>
        <source>opening the help</source>
        <translation>ouverture de l’aide</translation>
    </message>
    <message>
        <source>showing the about window</source>
        <translation>affichage de la fenêtre «&#xa0;À propos&#xa0;»</translation>
    </message>
    <message>
        <source>No hit has these words.

Esc closes the filter and shows all hits.</source>
        <translation>Aucun résultat ne contient ces mots.

Échap ferme le filtre et affiche tous les résultats.</translation>
    </message>
    <message>
        <source>There is nothing to search yet.</source>
        <translation>Il n’y a encore rien où chercher.</translation>
    </message>
    <message>
        <source>saving. The program stays open; close it again to leave</source>
        <translation>enregistrement. Le programme reste ouvert&#xa0;; fermez-le de nouveau pour le quitter</translation>
    </message>
    <message>
        <source>Search text</source>
        <translation>Texte à rechercher</translation>
    </message>
    <message>
        <source>Words from the name or folder, for example: rock live</source>
        <translation>Mots du nom ou du dossier, par exemple&#xa0;: rock live</translation>
    </message>
    <message>
        <source>Entries that contain more than this share of the words are shown</source>
        <translation>Les entrées qui contiennent plus que cette part des mots sont affichées</translation>
    </message>
    <message>
        <source>Desired match in percent</source>
        <translation>Taux souhaité en pour cent</translation>
    </message>
    <message>
        <source>Search While &amp;Typing</source>
        <translation>Chercher pendant la sa&amp;isie</translation>
    </message>
    <message>
        <source>&amp;Keep Search History</source>
        <translation>&amp;Garder l’historique des recherches</translation>
    </message>
    <message>
        <source>Clear Search &amp;History</source>
        <translation>Effacer &amp;l’historique des recherches</translation>
    </message>
    <message>
        <source>Line below the menu</source>
        <translation>Ligne sous le menu</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Chercher</translation>
    </message>
    <message>
        <source>Web Update?</source>
        <translation>Mise à jour web&#xa0;?</translation>
    </message>
    <message>
        <source>Hits</source>
        <translation>Résultats</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>Only hits with all of these words in the name or folder are shown</source>
        <translation>Seuls les résultats dont le nom ou le dossier contient tous ces mots sont affichés</translation>
    </message>
    <message>
        <source>Words that the name or folder must have</source>
        <translation>Mots que le nom ou le dossier doit contenir</translation>
    </message>
    <message>
        <source>&amp;Search for:</source>
        <translation>Rec&amp;hercher&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Match %:</source>
        <translation>&amp;Taux %&#xa0;:</translation>
    </message>
    <message>
        <source>Number of entries found</source>
        <translation>Nombre d’entrées trouvées</translation>
    </message>
    <message>
        <source>Number of entries searched</source>
        <translation>Nombre d’entrées parcourues</translation>
    </message>
    <message>
        <source>Found:</source>
        <translation>Trouvées&#xa0;:</translation>
    </message>
    <message>
        <source>Searched:</source>
        <translation>Parcourues&#xa0;:</translation>
    </message>
    <message>
        <source>Program version</source>
        <translation>Version du programme</translation>
    </message>
    <message>
        <source>Fi&amp;lter:</source>
        <translation>Fi&amp;ltre&#xa0;:</translation>
    </message>
    <message>
        <source>Number of hits shown</source>
        <translation>Nombre de résultats affichés</translation>
    </message>
    <message>
        <source>Main menu</source>
        <translation>Menu principal</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Add/Edit Local Folder To Search List</source>
        <translation>Ajouter/modifier un &amp;dossier local de la liste de recherche</translation>
    </message>
    <message>
        <source>Add/Edit Offline List files</source>
        <translation>Ajouter/modifier des fichiers de liste hors ligne</translation>
    </message>
    <message>
        <source>Rescan Local Search Folders</source>
        <translation>Relire les dossiers de recherche locaux</translation>
    </message>
    <message>
        <source>Listing &amp;History...</source>
        <translation>&amp;Historique des listes...</translation>
    </message>
    <message>
        <source>&amp;Export Hits...</source>
        <translation>&amp;Exporter les résultats...</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Options</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>H&amp;its</source>
        <translation>&amp;Résultats</translation>
    </message>
    <message>
        <source>&amp;Peers</source>
        <translation>&amp;Pairs</translation>
    </message>
    <message>
        <source>&amp;Share My Lists</source>
        <translation>&amp;Partager mes listes</translation>
    </message>
    <message>
        <source>&amp;Get Lists From Peer...</source>
        <translation>&amp;Obtenir les listes d’un pair...</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;ide</translation>
    </message>
    <message>
        <source>Program &amp;Usage</source>
        <translation>&amp;Utilisation du programme</translation>
    </message>
    <message>
        <source>&amp;Release Information</source>
        <translation>&amp;Notes de version</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>À &amp;propos</translation>
    </message>
    <message>
        <source>%1 hits are selected. At most %2 can be copied at once.</source>
        <translation>%1 résultats sont sélectionnés. Au plus %2 peuvent être copiés à la fois.</translation>
    </message>
    <message>
        <source>Copying was stopped. The clipboard holds what it held before.</source>
        <translation>La copie a été arrêtée. Le presse-papiers contient ce qu’il contenait avant.</translation>
    </message>
    <message>
        <source>Copying was given up, since a new search has replaced the hits. The clipboard holds what it held before.</source>
        <translation>La copie a été abandonnée, car une nouvelle recherche a remplacé les résultats. Le presse-papiers contient ce qu’il contenait avant.</translation>
    </message>
    <message>
        <source>For these, the path in the catalogue was copied.</source>
        <translation>Pour ceux-ci, le chemin du catalogue a été copié.</translation>
    </message>
    <message>
        <source>doing what the program was started for</source>
        <translation>exécution de ce pour quoi le programme a été lancé</translation>
    </message>
    <message>
        <source>Table (*.csv)</source>
        <translation>Tableau (*.csv)</translation>
    </message>
    <message>
        <source>Page with its own search box (*.html)</source>
        <translation>Page avec sa propre zone de recherche (*.html)</translation>
    </message>
    <message>
        <source>Listing that can be searched (*.txt)</source>
        <translation>Liste dans laquelle on peut chercher (*.txt)</translation>
    </message>
    <message>
        <source>There are no hits to export.</source>
        <translation>Il n’y a aucun résultat à exporter.</translation>
    </message>
    <message>
        <source>Export Hits</source>
        <translation>Exporter les résultats</translation>
    </message>
    <message>
        <source>The ending of the name says what is written: .csv, .html or .txt. %1 has none of these.</source>
        <translation>L’extension du nom indique ce qui est écrit&#xa0;: .csv, .html ou .txt. %1 n’a aucune de ces extensions.</translation>
    </message>
    <message>
        <source>%1 belongs to what is searched. Please choose another name.</source>
        <translation>%1 fait partie de ce qui est parcouru. Veuillez choisir un autre nom.</translation>
    </message>
    <message>
        <source>exporting hits to %1</source>
        <translation>exportation de résultats vers %1</translation>
    </message>
    <message>
        <source>%1 hits were written to %2.</source>
        <translation>%1 résultats ont été écrits dans %2.</translation>
    </message>
    <message>
        <source>%1 of %2 hits</source>
        <translation>%1 résultats sur %2</translation>
    </message>
    <message>
        <source>The export was stopped. Nothing was written.</source>
        <translation>L’exportation a été arrêtée. Rien n’a été écrit.</translation>
    </message>
    <message>
        <source>The export was given up, since a new search has replaced the hits. Nothing was written.</source>
        <translation>L’exportation a été abandonnée, car une nouvelle recherche a remplacé les résultats. Rien n’a été écrit.</translation>
    </message>
    <message>
        <source>Hit</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>O&amp;pen</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>Open Containing &amp;Folder</source>
        <translation>Ouvrir le &amp;dossier qui le contient</translation>
    </message>
    <message>
        <source>Preview Image</source>
        <translation>Aperçu de l’image</translation>
    </message>
    <message>
        <source>Enqueue (Winamp)</source>
        <translation>Mettre en file d’attente (Winamp)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>Copy &amp;Names</source>
        <translation>Copier les &amp;noms</translation>
    </message>
    <message>
        <source>Copy Full P&amp;ath</source>
        <translation>Copier le ch&amp;emin complet</translation>
    </message>
    <message>
        <source>&amp;Export Selected...</source>
        <translation>E&amp;xporter la sélection...</translation>
    </message>
    <message>
        <source>&amp;Which Disk?</source>
        <translation>&amp;Quel disque&#xa0;?</translation>
    </message>
    <message>
        <source>P&amp;roperties</source>
        <translation>P&amp;ropriétés</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>Show in &amp;Folder</source>
        <translation>Afficher dans le &amp;dossier</translation>
    </message>
    <message>
        <source>At most %1 hits can be dragged at once. Nothing was dragged.</source>
        <translation>Au plus %1 résultats peuvent être glissés à la fois. Rien n’a été glissé.</translation>
    </message>
    <message>
        <source>The picture preview is not available.</source>
        <translation>L’aperçu des images n’est pas disponible.</translation>
    </message>
    <message>
        <source>showing &quot;%1&quot;</source>
        <translation>affichage de «&#xa0;%1&#xa0;»</translation>
    </message>
    <message numerus="yes">
        <source>%1 hits are selected. Open all of them?</source>
        <translation>
            <numerusform>%1 résultat est sélectionné. L’ouvrir&#xa0;?</numerusform>
            <numerusform>%1 résultats sont sélectionnés. Les ouvrir tous&#xa0;?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 hits are selected. At most %2 can be opened at once.</source>
        <translation>
            <numerusform>%1 résultat est sélectionné. Au plus %2 peuvent être ouverts à la fois.</numerusform>
            <numerusform>%1 résultats sont sélectionnés. Au plus %2 peuvent être ouverts à la fois.</numerusform>
        </translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>searching for &quot;%1&quot;</source>
        <translation>recherche de «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>not searched: more than %1 words</source>
        <translation>pas de recherche&#xa0;: plus de %1 mots</translation>
    </message>
    <message>
        <source>%1 folder was added.</source>
        <translation>%1 dossier a été ajouté.</translation>
    </message>
    <message numerus="yes">
        <source>%1 folders were added.</source>
        <translation>
            <numerusform>%1 dossier a été ajouté.</numerusform>
            <numerusform>%1 dossiers ont été ajoutés.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 listing was added.</source>
        <translation>%1 liste a été ajoutée.</translation>
    </message>
    <message numerus="yes">
        <source>%1 listings were added.</source>
        <translation>
            <numerusform>%1 liste a été ajoutée.</numerusform>
            <numerusform>%1 listes ont été ajoutées.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Catalogue folders of your own</source>
        <translation>&amp;Cataloguer vos propres dossiers</translation>
    </message>
    <message>
        <source>Search &amp;listings that you have</source>
        <translation>Chercher dans des li&amp;stes existantes</translation>
    </message>
    <message>
        <source>adding what was dropped</source>
        <translation>ajout de ce qui a été déposé</translation>
    </message>
    <message>
        <source>File, %1</source>
        <translation>Fichier, %1</translation>
    </message>
    <message>
        <source>%1 is no folder that can be read.</source>
        <translation>%1 n’est pas un dossier lisible.</translation>
    </message>
    <message>
        <source>%1 is not catalogued yet.<byte value="xd"/>
<byte value="xd"/>
Add it to the local search folders, and rescan them?</source>
        <translation>%1 n’est pas encore catalogué.<byte value="xd"/>
<byte value="xd"/>
L’ajouter aux dossiers de recherche locaux et relire ceux-ci&#xa0;?</translation>
    </message>
    <message>
        <source>Rescan Local Search Locations?</source>
        <translation>Relire les emplacements de recherche locaux&#xa0;?</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Earlier searches</source>
        <translation>Recherches précédentes</translation>
    </message>
    <message>
        <source>Earlier searches (Down)</source>
        <translation>Recherches précédentes (flèche vers le bas)</translation>
    </message>
    <message>
        <source>Right adds &quot;%1&quot;</source>
        <translation>La flèche vers la droite ajoute «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>&amp;Match</source>
        <translation>&amp;Taux</translation>
    </message>
    <message>
        <source>&amp;Volume</source>
        <translation>&amp;Volume</translation>
    </message>
    <message>
        <source>Fol&amp;der</source>
        <translation>&amp;Dossier</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Nom</translation>
    </message>
    <message>
        <source>&amp;Size</source>
        <translation>Taill&amp;e</translation>
    </message>
    <message>
        <source>D&amp;ate</source>
        <translation>D&amp;ate</translation>
    </message>
    <message>
        <source>Sort by %1</source>
        <translation>Trier par %1</translation>
    </message>
    <message>
        <source>&amp;Filter Hits</source>
        <translation>&amp;Filtrer les résultats</translation>
    </message>
    <message>
        <source>F&amp;ound Order</source>
        <translation>O&amp;rdre de découverte</translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation>&amp;Colonnes</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Colonnes</translation>
    </message>
    <message>
        <source>&amp;Reset Columns</source>
        <translation>&amp;Réinitialiser les colonnes</translation>
    </message>
    <message>
        <source>%1 (descending)</source>
        <translation>%1 (décroissant)</translation>
    </message>
    <message>
        <source>%1 (ascending)</source>
        <translation>%1 (croissant)</translation>
    </message>
    <message>
        <source>%1, with Qt %2</source>
        <translation>%1, avec Qt %2</translation>
    </message>
    <message>
        <source>loading the picture %1</source>
        <translation>chargement de l’image %1</translation>
    </message>
    <message>
        <source>The request to stop an earlier rescan is still in force. With it, most folders would be left out of the listings.<byte value="xd"/>
<byte value="xd"/>
Forget the request, and rescan everything?</source>
        <translation>La demande d’arrêter une relecture précédente est encore en vigueur. Avec elle, la plupart des dossiers manqueraient dans les listes.<byte value="xd"/>
<byte value="xd"/>
Oublier la demande et tout relire&#xa0;?</translation>
    </message>
    <message>
        <source>restoring the listing %1</source>
        <translation>restauration de la liste %1</translation>
    </message>
    <message>
        <source>updating from the web</source>
        <translation>mise à jour depuis le web</translation>
    </message>
    <message>
        <source>The update was cancelled. It can be started again when the program is started again.</source>
        <translation>La mise à jour a été annulée. Elle pourra être relancée au prochain démarrage du programme.</translation>
    </message>
    <message>
        <source>To use the web update, fill in the web server and the archive in File, Options, and start the program again.</source>
        <translation>Pour utiliser la mise à jour web, indiquez le serveur web et l’archive dans Fichier, Options, puis relancez le programme.</translation>
    </message>
    <message>
        <source>Get Lists From Peer</source>
        <translation>Obtenir les listes d’un pair</translation>
    </message>
    <message>
        <source>&amp;Peer (host or host:port):</source>
        <translation>&amp;Pair (hôte ou hôte:port)&#xa0;:</translation>
    </message>
    <message>
        <source>saving the settings</source>
        <translation>enregistrement des réglages</translation>
    </message>
    <message>
        <source>saving the window&apos;s place</source>
        <translation>enregistrement de la place de la fenêtre</translation>
    </message>
    <message>
        <source>saving the online sources</source>
        <translation>enregistrement des sources en ligne</translation>
    </message>
    <message>
        <source>saving the offline sources</source>
        <translation>enregistrement des sources hors ligne</translation>
    </message>
    <message>
        <source>Statup error: %1 %2</source>
        <translation>Erreur au démarrage&#xa0;: %1&#xa0;%2</translation>
    </message>
    <message>
        <source>Could not find file specified on command line. Using default file.</source>
        <translation>Le fichier indiqué sur la ligne de commande est introuvable. Le fichier par défaut est utilisé.</translation>
    </message>
    <message>
        <source>%1 listing</source>
        <translation>%1 liste</translation>
    </message>
    <message numerus="yes">
        <source>%1 listings</source>
        <translation>
            <numerusform>%1 liste</numerusform>
            <numerusform>%1 listes</numerusform>
        </translation>
    </message>
    <message>
        <source>stopped after %1 of %2</source>
        <translation>arrêt après %1 sur %2</translation>
    </message>
    <message>
        <source>%1 listing missing</source>
        <translation>%1 liste manquante</translation>
    </message>
    <message numerus="yes">
        <source>%1 listings missing</source>
        <translation>
            <numerusform>%1 liste manquante</numerusform>
            <numerusform>%1 listes manquantes</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was searched: %1.</source>
        <translation>Rien n’a été parcouru&#xa0;: %1.</translation>
    </message>
    <message>
        <source>No file found: %1.</source>
        <translation>Aucun fichier trouvé&#xa0;: %1.</translation>
    </message>
    <message>
        <source>No file found in %1%2.</source>
        <translation>Aucun fichier trouvé dans %1%2.</translation>
    </message>
    <message>
        <source>all %1 of them</source>
        <translation>tous les %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>More than %1% of the words means %2; with %3, %4 is enough.</source>
        <translation>Plus de %1&#xa0;% des mots, c’est %2&#xa0;; avec %3, %4 suffisent.</translation>
    </message>
    <message>
        <source>%1 hit</source>
        <translation>%1 résultat</translation>
    </message>
    <message numerus="yes">
        <source>%1 hits</source>
        <translation>
            <numerusform>%1 résultat</numerusform>
            <numerusform>%1 résultats</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 shown</source>
        <translation>%1 sur %2 affichés</translation>
    </message>
    <message>
        <source>%1 selected</source>
        <translation>sélectionnés : %1</translation>
    </message>
    <message>
        <source>without the main data file offline lists are not searched</source>
        <translation>sans le fichier de données principal, les listes hors ligne ne sont pas parcourues</translation>
    </message>
    <message>
        <source>1 entry</source>
        <translation>1 entrée</translation>
    </message>
    <message numerus="yes">
        <source>%1 entries</source>
        <translation>
            <numerusform>%1 entrée</numerusform>
            <numerusform>%1 entrées</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 new</source>
        <translation>%1 de plus</translation>
    </message>
    <message>
        <source>%1 gone</source>
        <translation>%1 de moins</translation>
    </message>
    <message>
        <source>%1 drive missing</source>
        <translation>%1 lecteur absent</translation>
    </message>
    <message numerus="yes">
        <source>%1 drives missing</source>
        <translation>
            <numerusform>%1 lecteur absent</numerusform>
            <numerusform>%1 lecteurs absents</numerusform>
        </translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>arrêtée</translation>
    </message>
    <message>
        <source>%1 of %2 copied so far; Esc stops</source>
        <translation>%1 sur %2 copiés jusqu’ici&#xa0;; Échap arrête</translation>
    </message>
    <message>
        <source>%1 were copied.</source>
        <translation>Copie faite&#xa0;: %1.</translation>
    </message>
    <message>
        <source>%1 of %2 could not be found on a connected drive.</source>
        <translation>%1 sur %2 n’ont été trouvés sur aucun lecteur connecté.</translation>
    </message>
    <message>
        <source>%1 are no longer selected: they are scattered too widely now</source>
        <translation>Désélection&#xa0;: %1, désormais trop dispersés</translation>
    </message>
    <message>
        <source>No file holds more than 100% of the words; 99 asks for all of them.</source>
        <translation>Aucun fichier ne contient plus de 100&#xa0;% des mots&#xa0;; 99 les demande tous.</translation>
    </message>
    <message>
        <source>Without the main data file the offline lists are not searched.</source>
        <translation>Sans le fichier de données principal, les listes hors ligne ne sont pas parcourues.</translation>
    </message>
    <message>
        <source>Folders are written with \: try %1</source>
        <translation>Les dossiers s’écrivent avec \&#xa0;: essayez %1</translation>
    </message>
    <message>
        <source>Version %1.%2.%3</source>
        <translation>Version %1.%2.%3</translation>
    </message>
    <message>
        <source>Text file / folder list searching utility</source>
        <translation>Recherche dans des listes de textes, de fichiers et de dossiers</translation>
    </message>
    <message>
        <source>its content cannot be unpacked</source>
        <translation>son contenu ne peut pas être décompressé</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in the archive is damaged: %2.</source>
        <translation>«&#xa0;%1&#xa0;» dans l’archive est endommagé&#xa0;: %2.</translation>
    </message>
    <message>
        <source>it is longer than it should be</source>
        <translation>l’entrée est plus longue qu’elle ne devrait</translation>
    </message>
    <message>
        <source>it is shorter than it should be</source>
        <translation>l’entrée est plus courte qu’elle ne devrait</translation>
    </message>
    <message>
        <source>its checksum is wrong</source>
        <translation>sa somme de contrôle est fausse</translation>
    </message>
    <message>
        <source>it cannot be read</source>
        <translation>l’entrée ne peut pas être lue</translation>
    </message>
    <message>
        <source>Nothing was unpacked.</source>
        <translation>Rien n’a été décompressé.</translation>
    </message>
    <message>
        <source>The archive has an entry whose name %1: &quot;%2&quot;.</source>
        <translation>L’archive a une entrée dont le nom %1&#xa0;: «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>est vide</translation>
    </message>
    <message>
        <source>holds control characters</source>
        <translation>contient des caractères de contrôle</translation>
    </message>
    <message>
        <source>is an absolute path</source>
        <translation>est un chemin absolu</translation>
    </message>
    <message>
        <source>leads out of the folder</source>
        <translation>mène hors du dossier</translation>
    </message>
    <message>
        <source>has a drive</source>
        <translation>nomme un lecteur</translation>
    </message>
    <message>
        <source>is too long</source>
        <translation>est trop long</translation>
    </message>
    <message>
        <source>The archive has an entry that is more than %1 folders deep: &quot;%2&quot;.</source>
        <translation>L’archive a une entrée à plus de %1 dossiers de profondeur&#xa0;: «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>The archive holds a link: &quot;%1&quot;.</source>
        <translation>L’archive contient un lien&#xa0;: «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The archive holds a device or a socket: &quot;%1&quot;.</source>
        <translation>L’archive contient un périphérique ou un socket&#xa0;: «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The archive holds a folder with content: &quot;%1&quot;.</source>
        <translation>L’archive contient un dossier qui a un contenu&#xa0;: «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in the archive is encrypted.</source>
        <translation>«&#xa0;%1&#xa0;» dans l’archive est chiffré.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in the archive is packed in a way that this program does not know.</source>
        <translation>«&#xa0;%1&#xa0;» dans l’archive est compressé d’une manière que ce programme ne connaît pas.</translation>
    </message>
    <message>
        <source>In the archive a file and a folder have the same name: &quot;%1&quot;.</source>
        <translation>Dans l’archive, un fichier et un dossier ont le même nom&#xa0;: «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The archive holds two entries of the same name: &quot;%1&quot;.</source>
        <translation>L’archive contient deux entrées du même nom&#xa0;: «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The archive holds more than %1 files and folders.</source>
        <translation>L’archive contient plus de %1 fichiers et dossiers.</translation>
    </message>
    <message>
        <source>The archive would unpack to more than %1.</source>
        <translation>Décompressée, l’archive dépasserait %1.</translation>
    </message>
    <message>
        <source>The entries of the archive overlap; it was made to do harm.</source>
        <translation>Les entrées de l’archive se chevauchent&#xa0;; elle a été faite pour nuire.</translation>
    </message>
    <message>
        <source>The archive holds more than %1 entries.</source>
        <translation>L’archive contient plus de %1 entrées.</translation>
    </message>
    <message>
        <source>The archive has a file without a name: &quot;%1&quot;.</source>
        <translation>L’archive a un fichier sans nom&#xa0;: «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The archive &quot;%1&quot; is damaged: its parts contradict each other.</source>
        <translation>L’archive «&#xa0;%1&#xa0;» est endommagée&#xa0;: ses parties se contredisent.</translation>
    </message>
    <message>
        <source>The archive &quot;%1&quot; holds two entries of the same name.</source>
        <translation>L’archive «&#xa0;%1&#xa0;» contient deux entrées du même nom.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no zip archive, or its end is missing.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une archive zip, ou il manque sa fin.</translation>
    </message>
    <message>
        <source>The archive &quot;%1&quot; holds more than %2 entries.</source>
        <translation>L’archive «&#xa0;%1&#xa0;» contient plus de %2 entrées.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is only a part of an archive of several files.</source>
        <translation>«&#xa0;%1&#xa0;» n’est qu’une partie d’une archive en plusieurs fichiers.</translation>
    </message>
    <message>
        <source>The archive &quot;%1&quot; cannot be read.</source>
        <translation>L’archive «&#xa0;%1&#xa0;» ne peut pas être lue.</translation>
    </message>
    <message>
        <source>One file before it was unpacked, nothing else was changed.</source>
        <translation>Un fichier qui la précède a été décompressé, rien d’autre n’a changé.</translation>
    </message>
    <message numerus="yes">
        <source>The %1 files before it were unpacked, nothing else was changed.</source>
        <translation>
            <numerusform>Le %1 fichier qui la précède a été décompressé, rien d’autre n’a changé.</numerusform>
            <numerusform>Les %1 fichiers qui la précèdent ont été décompressés, rien d’autre n’a changé.</numerusform>
        </translation>
    </message>
    <message>
        <source>the list could not be written to standard output</source>
        <translation>la liste n’a pas pu être écrite sur la sortie standard</translation>
    </message>
    <message>
        <source>%1 could not be removed</source>
        <translation>%1 n’a pas pu être supprimé</translation>
    </message>
    <message>
        <source>Write neither counts nor progress to standard error</source>
        <translation>N’écrire ni nombres ni progression sur stderr</translation>
    </message>
    <message>
        <source>Write JSON, an object a line</source>
        <translation>Écrire du JSON, un objet par ligne</translation>
    </message>
    <message>
        <source>Find files in listings by words and a match percentage</source>
        <translation>Trouver des fichiers dans les listes par mots et taux</translation>
    </message>
    <message>
        <source>Hits must match more than this percentage; 50</source>
        <translation>Les résultats doivent dépasser ce pourcentage&#xa0;; 50</translation>
    </message>
    <message>
        <source>tsv (default), csv or json</source>
        <translation>tsv (par défaut), csv ou json</translation>
    </message>
    <message>
        <source>Of match,volume,folder,name,path,size,modified,listing,words</source>
        <translation>match,volume,folder,name,path,size,modified,listing,words</translation>
    </message>
    <message>
        <source>Start with the titles of the columns</source>
        <translation>Commencer par les titres des colonnes</translation>
    </message>
    <message>
        <source>Leave them out of csv with --fields, which starts with them</source>
        <translation>Les omettre du csv avec --fields, où ils figurent d’office</translation>
    </message>
    <message>
        <source>End rows with NUL instead of a line feed</source>
        <translation>Terminer les lignes par NUL au lieu d’un saut de ligne</translation>
    </message>
    <message>
        <source>Write no more than N hits</source>
        <translation>N’écrire pas plus de N résultats</translation>
    </message>
    <message>
        <source>match, volume, folder, name, size or modified</source>
        <translation>match, volume, folder, name, size ou modified</translation>
    </message>
    <message>
        <source>The other way round, with --sort</source>
        <translation>Dans l’autre sens, avec --sort</translation>
    </message>
    <message>
        <source>Highlight the words: auto (default), always or never</source>
        <translation>Mots en couleur&#xa0;: auto (par défaut), always ou never</translation>
    </message>
    <message>
        <source>Write only the number of hits</source>
        <translation>N’écrire que le nombre de résultats</translation>
    </message>
    <message>
        <source>Neither read nor write the search cache</source>
        <translation>Ne pas lire ni écrire le cache de recherche</translation>
    </message>
    <message>
        <source>Search your own sources</source>
        <translation>Chercher dans vos propres sources</translation>
    </message>
    <message>
        <source>Hand the files on</source>
        <translation>Transmettre les fichiers</translation>
    </message>
    <message>
        <source>A listing from a pipe</source>
        <translation>Une liste venant d’un tube</translation>
    </message>
    <message>
        <source>Writes one row for each entry of the listings that matches TEXT by more than the wanted percentage, in the order in which they are found. TEXT is one argument: words with blanks between, in any order, of which each is looked for anywhere in folder or name, whatever its case. The match is the share of the words that were found. Without a LISTING, the user&apos;s own sources are searched, as the window does. A LISTING may be a pipe; - is standard input.</source>
        <translation>Écrit une ligne pour chaque entrée des listes qui correspond à TEXT à plus que le pourcentage voulu, dans l’ordre où elles sont trouvées. TEXT est un seul argument&#xa0;: des mots séparés par des espaces, dans n’importe quel ordre, dont chacun est cherché n’importe où dans le dossier ou le nom, sans égard à la casse. Le taux est la part des mots trouvés. Sans LISTING, la recherche se fait dans les sources de l’utilisateur, comme dans la fenêtre. LISTING peut être un tube&#xa0;; - désigne l’entrée standard.</translation>
    </message>
    <message>
        <source>In tsv and csv, the columns are those of the window unless --fields chooses others: the match as &quot;100%&quot;, volume, folder, name, the size in megabytes and the date, as the locale writes them. Json has all fields. Tsv has blanks in place of control characters, but where -0 is given and there is one column, texts are left as they are. On a terminal, no control character of a name gets through.</source>
        <translation>En tsv et en csv, les colonnes sont celles de la fenêtre, à moins que --fields n’en choisisse d’autres&#xa0;: le taux sous la forme «&#xa0;100%&#xa0;», le volume, le dossier, le nom, la taille en mégaoctets et la date, comme les écrivent les paramètres régionaux. Le json a tous les champs. Le tsv a des espaces à la place des caractères de contrôle&#xa0;; avec -0 et une seule colonne cependant, les textes restent tels quels. Sur un terminal, aucun caractère de contrôle d’un nom ne passe.</translation>
    </message>
    <message>
        <source>The last line on standard error says how many entries were found and searched. With --sort nothing is written before all is searched.</source>
        <translation>La dernière ligne de la sortie d’erreur dit combien d’entrées ont été trouvées et parcourues. Avec --sort, rien n’est écrit avant que tout soit parcouru.</translation>
    </message>
    <message>
        <source>Write the listing of a folder</source>
        <translation>Écrire la liste d’un dossier</translation>
    </message>
    <message>
        <source>The volume&apos;s name in the listing; default: the folder&apos;s name</source>
        <translation>Nom du volume dans la liste&#xa0;; sinon celui du dossier</translation>
    </message>
    <message>
        <source>List folders only</source>
        <translation>Ne lister que les dossiers</translation>
    </message>
    <message>
        <source>The listing&apos;s file; default, and -: standard output</source>
        <translation>Fichier de la liste&#xa0;; sinon, et avec -&#xa0;: sortie standard</translation>
    </message>
    <message>
        <source>Catalogue a folder</source>
        <translation>Cataloguer un dossier</translation>
    </message>
    <message>
        <source>Name it, and pack it</source>
        <translation>La nommer et la compresser</translation>
    </message>
    <message>
        <source>Catalogues a folder with everything below it. A file is put in place when it is whole; until then, and when anything goes wrong, the one that was there before stays. Names that could not be read are reported on standard error.</source>
        <translation>Catalogue un dossier avec tout ce qu’il contient. Un fichier n’est mis en place que lorsqu’il est complet&#xa0;; jusque-là, et en cas de problème, celui qui y était reste. Les noms qui n’ont pas pu être lus sont signalés sur la sortie d’erreur.</translation>
    </message>
    <message>
        <source>Renew the listings of your own folders, or of those named</source>
        <translation>Renouveler les listes de vos dossiers, ou de certains</translation>
    </message>
    <message>
        <source>Write what was done to standard output, as JSON</source>
        <translation>Écrire ce qui a été fait sur la sortie standard, en JSON</translation>
    </message>
    <message>
        <source>Renew all of them</source>
        <translation>Les renouveler toutes</translation>
    </message>
    <message>
        <source>Only these</source>
        <translation>Seulement celles-ci</translation>
    </message>
    <message>
        <source>A NAME is the description of a folder. A folder that is not there, such as an unplugged drive, keeps its listing. What a listing held before is kept too; see history.</source>
        <translation>NAME est la description d’un dossier. Un dossier absent, par exemple sur un lecteur débranché, garde sa liste. Ce qu’une liste contenait auparavant est gardé aussi&#xa0;; voir history.</translation>
    </message>
    <message>
        <source>Show folders and offline lists</source>
        <translation>Montrer les dossiers et les listes hors ligne</translation>
    </message>
    <message>
        <source>Add a folder and an offline list</source>
        <translation>Ajouter un dossier et une liste hors ligne</translation>
    </message>
    <message>
        <source>Take one out of its list</source>
        <translation>En retirer une de sa liste</translation>
    </message>
    <message>
        <source>Have one searched first</source>
        <translation>En faire parcourir une en premier</translation>
    </message>
    <message>
        <source>Shows a row for each source, in the order in which they are searched: &quot;folder&quot;, &quot;main&quot; or &quot;offline&quot;, its description, its path, the path of its listing, and whether the source is &quot;there&quot; or &quot;gone&quot;, parted by tabs. The last line, on standard error, names the folder in which listings and lists are kept.</source>
        <translation>Montre une ligne pour chaque source, dans l’ordre où elles sont parcourues&#xa0;: «&#xa0;folder&#xa0;», «&#xa0;main&#xa0;» ou «&#xa0;offline&#xa0;», sa description, son chemin, le chemin de sa liste, et si la source est là («&#xa0;there&#xa0;») ou absente («&#xa0;gone&#xa0;»), séparés par des tabulations. La dernière ligne, sur la sortie d’erreur, nomme le dossier où sont gardées les listes et les listes de sources.</translation>
    </message>
    <message>
        <source>A window that is open shows changes when it is next started. Where it has changed the same list meanwhile, neither is lost: one of them is kept beside the other, and a message says so.</source>
        <translation>Une fenêtre ouverte montre les changements à son prochain démarrage. Si elle a changé la même liste entre-temps, aucune des deux n’est perdue&#xa0;: l’une est gardée à côté de l’autre, et un message le dit.</translation>
    </message>
    <message>
        <source>Add folders of your own, or listings as offline lists</source>
        <translation>Ajouter des dossiers, ou des listes hors ligne</translation>
    </message>
    <message>
        <source>The description of one source; default: the folder&apos;s name</source>
        <translation>Description d’une source&#xa0;; sinon le nom du dossier</translation>
    </message>
    <message>
        <source>A folder</source>
        <translation>Un dossier</translation>
    </message>
    <message>
        <source>An offline list</source>
        <translation>Une liste hors ligne</translation>
    </message>
    <message>
        <source>All of the paths are added, or none. A folder is listed by the next refresh.</source>
        <translation>Tous les chemins sont ajoutés, ou aucun. Un dossier est listé par le prochain refresh.</translation>
    </message>
    <message>
        <source>Take sources out of their lists</source>
        <translation>Retirer des sources de leurs listes</translation>
    </message>
    <message>
        <source>By its description</source>
        <translation>Par sa description</translation>
    </message>
    <message>
        <source>By its path</source>
        <translation>Par son chemin</translation>
    </message>
    <message>
        <source>A NAME is a description or a path. Neither folder nor listing is touched.</source>
        <translation>NAME est une description ou un chemin. Ni le dossier ni la liste ne sont touchés.</translation>
    </message>
    <message>
        <source>Give a source another place in its list</source>
        <translation>Donner à une source une autre place dans sa liste</translation>
    </message>
    <message>
        <source>Search it before the others</source>
        <translation>La parcourir avant les autres</translation>
    </message>
    <message>
        <source>A NAME is a description or a path, PLACE a number from 1. Sources are searched in this order.</source>
        <translation>NAME est une description ou un chemin, PLACE un nombre à partir de 1. Les sources sont parcourues dans cet ordre.</translation>
    </message>
    <message>
        <source>Show the earlier versions of listings, or restore one</source>
        <translation>Montrer des versions antérieures, ou en restaurer une</translation>
    </message>
    <message>
        <source>Put the newest complete version in the listing&apos;s place</source>
        <translation>Mettre la dernière version complète à la place de la liste</translation>
    </message>
    <message>
        <source>Restore this version instead</source>
        <translation>Restaurer plutôt cette version</translation>
    </message>
    <message>
        <source>Show what there is</source>
        <translation>Montrer ce qu’il y a</translation>
    </message>
    <message>
        <source>Bring that version back</source>
        <translation>Faire revenir cette version</translation>
    </message>
    <message>
        <source>Each row holds the listing, the number of the version, when the listing was made, its entries, its bytes, and &quot;complete&quot;, &quot;incomplete&quot; or &quot;damaged&quot;, parted by tabs, newest first. LISTING is the description of a folder, or the name or path of a listing.</source>
        <translation>Chaque ligne contient la liste, le numéro de la version, la date à laquelle la liste a été faite, ses entrées, ses octets, et «&#xa0;complete&#xa0;» (complète), «&#xa0;incomplete&#xa0;» (incomplète) ou «&#xa0;damaged&#xa0;» (endommagée), séparés par des tabulations, la plus récente d’abord. LISTING est la description d’un dossier, ou le nom ou le chemin d’une liste.</translation>
    </message>
    <message>
        <source>Show what is kept for later searches, or remove it</source>
        <translation>Montrer ou supprimer ce qui est gardé pour les recherches</translation>
    </message>
    <message>
        <source>Remove it; it is made again when it is needed</source>
        <translation>Le supprimer&#xa0;; il est refait quand il le faut</translation>
    </message>
    <message>
        <source>Only what belongs to no listing any more</source>
        <translation>Seulement ce qui n’appartient plus à aucune liste</translation>
    </message>
    <message>
        <source>Show it</source>
        <translation>Le montrer</translation>
    </message>
    <message>
        <source>Tidy up</source>
        <translation>Faire le ménage</translation>
    </message>
    <message>
        <source>Each row holds a size in bytes and the listing it is for, parted by a tab, and a third column &quot;(gone)&quot; where that listing is not there any more. What no search can use is marked as &quot;(damaged)&quot;, &quot;(unfinished)&quot; or &quot;(of an earlier version)&quot;.</source>
        <translation>Chaque ligne contient une taille en octets et la liste correspondante, séparées par une tabulation, et une troisième colonne «&#xa0;(gone)&#xa0;» si cette liste n’est plus là. Ce dont aucune recherche ne peut se servir est marqué «&#xa0;(damaged)&#xa0;» (endommagé), «&#xa0;(unfinished)&#xa0;» (inachevé) ou «&#xa0;(of an earlier version)&#xa0;» (d’une version antérieure).</translation>
    </message>
    <message>
        <source>Show this help, or that of a command behind it</source>
        <translation>Afficher cette aide, ou celle d’une commande qui suit</translation>
    </message>
    <message>
        <source>Show the version</source>
        <translation>Afficher la version</translation>
    </message>
    <message>
        <source>Write the completion for bash, zsh or fish</source>
        <translation>Écrire la complétion pour bash, zsh ou fish</translation>
    </message>
    <message>
        <source>Write the manual page</source>
        <translation>Écrire la page de manuel</translation>
    </message>
    <message>
        <source>FIELDS</source>
        <translation>CHAMPS</translation>
    </message>
    <message>
        <source>What --fields of find chooses from, and the keys of its JSON:</source>
        <translation>Ce dans quoi choisit --fields de find, et les clés de son JSON&#xa0;:</translation>
    </message>
    <message>
        <source>The match percentage, a number.</source>
        <translation>Le taux en pour cent, un nombre.</translation>
    </message>
    <message>
        <source>As the listing has them, the folder with backslashes.</source>
        <translation>Tels qu’ils sont dans la liste, le dossier avec des barres obliques inverses.</translation>
    </message>
    <message>
        <source>The path of the file itself, where the hit is from a folder of your own; empty for others, and where the listing does not hold the whole name and the file is not there. With --fields path alone, hits without a path are left out and counted on standard error.</source>
        <translation>Le chemin du fichier lui-même, si le résultat vient d’un de vos dossiers&#xa0;; vide pour les autres, et là où la liste ne contient pas le nom entier et où le fichier n’est pas là. Avec --fields path seul, les résultats sans chemin sont omis et comptés sur la sortie d’erreur.</translation>
    </message>
    <message>
        <source>Bytes.</source>
        <translation>Octets.</translation>
    </message>
    <message>
        <source>As in 2004-01-15T10:20:30, in the time zone of the machine that made the listing.</source>
        <translation>Comme 2004-01-15T10:20:30, dans le fuseau horaire de la machine qui a fait la liste.</translation>
    </message>
    <message>
        <source>The path of the listing, as it was given.</source>
        <translation>Le chemin de la liste, tel qu’il a été donné.</translation>
    </message>
    <message>
        <source>The words that were found, as they were searched for; in JSON an array.</source>
        <translation>Les mots trouvés, tels qu’ils ont été cherchés&#xa0;; en JSON un tableau.</translation>
    </message>
    <message>
        <source>In JSON only, and only where it is true: the entry has no size and date of its own in the listing, and those shown are of an earlier line. Where there are none at all, both keys are left out.</source>
        <translation>En JSON seulement, et seulement si c’est vrai&#xa0;: l’entrée n’a ni taille ni date propres dans la liste, et celles qui sont montrées viennent d’une ligne précédente. Là où il n’y en a aucune, les deux clés sont omises.</translation>
    </message>
    <message>
        <source>EXIT STATUS</source>
        <translation>CODE DE RETOUR</translation>
    </message>
    <message>
        <source>Something went wrong, or the command line was not understood; a sentence on standard error says what. What could be done was done. index and refresh: also when a folder holds more names than a listing takes.</source>
        <translation>Quelque chose s’est mal passé, ou la ligne de commande n’a pas été comprise&#xa0;; une phrase sur la sortie d’erreur dit quoi. Ce qui pouvait être fait l’a été. index et refresh&#xa0;: aussi quand un dossier contient plus de noms qu’une liste n’en accepte.</translation>
    </message>
    <message>
        <source>An interrupt or a termination ended it. Complete rows and files stay.</source>
        <translation>Une interruption ou une demande de fin l’a arrêté. Les lignes et fichiers complets restent.</translation>
    </message>
    <message>
        <source>FILES</source>
        <translation>FICHIERS</translation>
    </message>
    <message>
        <source>The settings.</source>
        <translation>Les réglages.</translation>
    </message>
    <message>
        <source>The search cache.</source>
        <translation>Le cache de recherche.</translation>
    </message>
    <message>
        <source>ENVIRONMENT</source>
        <translation>ENVIRONNEMENT</translation>
    </message>
    <message>
        <source>If it is set and not empty, find colours nothing unless --color always is given.</source>
        <translation>Si elle est définie et non vide, find ne colore rien, sauf avec --color always.</translation>
    </message>
    <message>
        <source>How sizes and dates are written, and read in listings.</source>
        <translation>Comment les tailles et les dates sont écrites, et lues dans les listes.</translation>
    </message>
    <message>
        <source>The settings file to use.</source>
        <translation>Le fichier de réglages à utiliser.</translation>
    </message>
    <message>
        <source>See FILES.</source>
        <translation>Voir FICHIERS.</translation>
    </message>
    <message>
        <source>the value of --match comes without &quot;%&quot;. Hits must match more than it: --match 99 finds what has all the words</source>
        <translation>la valeur de --match s’écrit sans «&#xa0;%&#xa0;». Les résultats doivent la dépasser&#xa0;: --match 99 trouve ce qui a tous les mots</translation>
    </message>
    <message>
        <source>the value of --match is a percentage from 1 to 100, not &quot;%1&quot;</source>
        <translation>la valeur de --match est un pourcentage de 1 à 100, pas «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>the search text is empty</source>
        <translation>le texte à rechercher est vide</translation>
    </message>
    <message>
        <source>the search text has more than %1 words</source>
        <translation>le texte à rechercher a plus de %1 mots</translation>
    </message>
    <message>
        <source>%1 found, %2 searched</source>
        <translation>%1 trouvées, %2 parcourues</translation>
    </message>
    <message numerus="yes">
        <source>%1 hits could not be read from the search cache. Please try again</source>
        <translation>
            <numerusform>%1 résultat n’a pas pu être lu dans le cache de recherche. Veuillez réessayer</numerusform>
            <numerusform>%1 résultats n’ont pas pu être lus dans le cache de recherche. Veuillez réessayer</numerusform>
        </translation>
    </message>
    <message>
        <source>the hits could not all be written to standard output</source>
        <translation>les résultats n’ont pas tous pu être écrits sur la sortie standard</translation>
    </message>
    <message numerus="yes">
        <source>%1 hits were left out, since they are from no folder of your own or their files are not there</source>
        <translation>
            <numerusform>%1 résultat a été omis, car il ne vient d’aucun de vos dossiers ou son fichier n’est pas là</numerusform>
            <numerusform>%1 résultats ont été omis, car ils ne viennent d’aucun de vos dossiers ou leurs fichiers ne sont pas là</numerusform>
        </translation>
    </message>
    <message>
        <source>nothing matches more than 100%; --match 99 finds what has all the words</source>
        <translation>rien ne dépasse 100%&#xa0;; --match 99 trouve ce qui a tous les mots</translation>
    </message>
    <message>
        <source>words to find come in one argument: &quot;%1 %2&quot;</source>
        <translation>les mots à trouver viennent en un seul argument&#xa0;: &quot;%1&#xa0;%2&quot;</translation>
    </message>
    <message>
        <source>there is no earlier version of %1</source>
        <translation>il n’y a pas de version antérieure de %1</translation>
    </message>
    <message>
        <source>name the listing that is to be restored</source>
        <translation>nommez la liste à restaurer</translation>
    </message>
    <message>
        <source>standard output</source>
        <translation>sortie standard</translation>
    </message>
    <message>
        <source>there is no complete earlier version of %1</source>
        <translation>il n’y a pas de version antérieure complète de %1</translation>
    </message>
    <message>
        <source>%1 is version %2 again, with %3 entries</source>
        <translation>%1 est de nouveau la version %2, avec %3 entrées</translation>
    </message>
    <message>
        <source>there is no folder of your own with the description &quot;%1&quot;; quorvin-cli sources shows them</source>
        <translation>vous n’avez pas de dossier avec la description «&#xa0;%1&#xa0;»&#xa0;; quorvin-cli sources les montre</translation>
    </message>
    <message>
        <source>the outcome could not be written to standard output</source>
        <translation>le bilan n’a pas pu être écrit sur la sortie standard</translation>
    </message>
    <message>
        <source>the text could not be written to standard output</source>
        <translation>le texte n’a pas pu être écrit sur la sortie standard</translation>
    </message>
    <message>
        <source>there is no completion for &quot;%1&quot;; the shells are bash, zsh and fish</source>
        <translation>il n’y a pas de complétion pour «&#xa0;%1&#xa0;»&#xa0;; les shells sont bash, zsh et fish</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <translation>il manque une valeur à %1</translation>
    </message>
    <message>
        <source>the options could not be understood</source>
        <translation>les options n’ont pas été comprises</translation>
    </message>
    <message>
        <source>find needs the words to find, in one argument</source>
        <translation>find a besoin des mots à trouver, en un seul argument</translation>
    </message>
    <message>
        <source>index needs the folder to list</source>
        <translation>index a besoin du dossier à lister</translation>
    </message>
    <message>
        <source>sources add needs a folder or a listing</source>
        <translation>sources add a besoin d’un dossier ou d’une liste</translation>
    </message>
    <message>
        <source>%1 needs the description or the path of a source</source>
        <translation>%1 a besoin de la description ou du chemin d’une source</translation>
    </message>
    <message>
        <source>there is no option &quot;%1&quot;</source>
        <translation>il n’y a pas d’option «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>there is no command &quot;%1&quot;</source>
        <translation>il n’y a pas de commande «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>there is no command</source>
        <translation>il manque une commande</translation>
    </message>
    <message>
        <source>%1 does not know what to do with &quot;%2&quot;</source>
        <translation>%1 ne sait que faire de «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>words that start with a dash go behind --</source>
        <translation>les mots qui commencent par un tiret viennent après --</translation>
    </message>
    <message>
        <source>%1 has no option &quot;%2&quot;</source>
        <translation>%1 n’a pas d’option «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>there is no format &quot;%1&quot;; the formats are tsv, csv and json</source>
        <translation>il n’y a pas de format «&#xa0;%1&#xa0;»&#xa0;; les formats sont tsv, csv et json</translation>
    </message>
    <message>
        <source>there is no field &quot;%1&quot;; the fields are %2</source>
        <translation>il n’y a pas de champ «&#xa0;%1&#xa0;»&#xa0;; les champs sont %2</translation>
    </message>
    <message>
        <source>the value of --limit is a number of hits, not &quot;%1&quot;</source>
        <translation>la valeur de --limit est un nombre de résultats, pas «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>hits cannot be sorted by &quot;%1&quot;, only by match, volume, folder, name, size or modified</source>
        <translation>les résultats ne peuvent pas être triés par «&#xa0;%1&#xa0;», seulement par match, volume, folder, name, size ou modified</translation>
    </message>
    <message>
        <source>the value of --color is auto, always or never, not &quot;%1&quot;</source>
        <translation>la valeur de --color est auto, always ou never, pas «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>--reverse goes with --sort</source>
        <translation>--reverse va avec --sort</translation>
    </message>
    <message>
        <source>history does not know what to do with &quot;%1&quot;</source>
        <translation>history ne sait que faire de «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>--number goes with --restore</source>
        <translation>--number va avec --restore</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number of a version</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un numéro de version</translation>
    </message>
    <message>
        <source>--name is for one source at a time</source>
        <translation>--name est pour une source à la fois</translation>
    </message>
    <message>
        <source>sources move needs a source and its place</source>
        <translation>sources move a besoin d’une source et de sa place</translation>
    </message>
    <message>
        <source>the place of sources move is a number from 1</source>
        <translation>la place de sources move est un nombre à partir de 1</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>il n’y a pas assez de mémoire</translation>
    </message>
    <message>
        <source>a file of the search cache was cut while it was searched. Please try again.</source>
        <translation>un fichier du cache de recherche a été tronqué pendant qu’il était parcouru. Veuillez réessayer.</translation>
    </message>
    <message>
        <source>The data folder is %1</source>
        <translation>Le dossier de données est %1</translation>
    </message>
    <message>
        <source>%1 is neither a folder nor a listing file</source>
        <translation>%1 n’est ni un dossier ni un fichier de liste</translation>
    </message>
    <message>
        <source>the list has places 1 to %1</source>
        <translation>la liste a les places 1 à %1</translation>
    </message>
    <message>
        <source>there is no source &quot;%1&quot;; quorvin-cli sources shows them</source>
        <translation>il n’y a pas de source «&#xa0;%1&#xa0;»&#xa0;; quorvin-cli sources les montre</translation>
    </message>
    <message>
        <source>%1 sources are called &quot;%2&quot;; please name the path of one</source>
        <translation>%1 sources s’appellent «&#xa0;%2&#xa0;»&#xa0;; veuillez donner le chemin de l’une d’elles</translation>
    </message>
    <message>
        <source>quorvin-cli refresh makes the listing</source>
        <translation>quorvin-cli refresh fait la liste</translation>
    </message>
    <message>
        <source>options</source>
        <translation>options</translation>
    </message>
    <message>
        <source>EXAMPLES</source>
        <translation>EXEMPLES</translation>
    </message>
    <message>
        <source>quorvin-cli [option] COMMAND ...</source>
        <translation>quorvin-cli [option] COMMANDE ...</translation>
    </message>
    <message>
        <source>Quorvin Utility in the terminal: search and make catalogues of disks.</source>
        <translation>Quorvin Utility dans le terminal&#xa0;: cataloguer des disques et y chercher.</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Commandes&#xa0;:</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Options&#xa0;:</translation>
    </message>
    <message>
        <source>quorvin-cli COMMAND --help says more of each; man quorvin-cli says all.</source>
        <translation>quorvin-cli COMMANDE --help en dit plus sur chacune&#xa0;; man quorvin-cli dit tout.</translation>
    </message>
    <message>
        <source>Examples:</source>
        <translation>Exemples&#xa0;:</translation>
    </message>
    <message>
        <source>User commands</source>
        <translation>Commandes utilisateur</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOM</translation>
    </message>
    <message>
        <source>search and make listings of disks, drives and shares</source>
        <translation>faire des listes de disques, de lecteurs et de partages, et y chercher</translation>
    </message>
    <message>
        <source>SYNOPSIS</source>
        <translation>SYNOPSIS</translation>
    </message>
    <message>
        <source>DESCRIPTION</source>
        <translation>DESCRIPTION</translation>
    </message>
    <message>
        <source>Finds files in listings, the catalogues of disks and folders, and makes such listings.</source>
        <translation>Trouve des fichiers dans des listes, les catalogues de disques et de dossiers, et fait de telles listes.</translation>
    </message>
    <message>
        <source>It uses the same settings and folders as the window,</source>
        <translation>Il utilise les mêmes réglages et les mêmes dossiers que la fenêtre,</translation>
    </message>
    <message>
        <source>OPTIONS</source>
        <translation>OPTIONS</translation>
    </message>
    <message>
        <source>COMMANDS</source>
        <translation>COMMANDES</translation>
    </message>
    <message>
        <source>SEE ALSO</source>
        <translation>VOIR AUSSI</translation>
    </message>
    <message>
        <source>Choose Folders to Catalogue</source>
        <translation>Choisir les dossiers à cataloguer</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Local Data Folder:</source>
        <translation>Dossier de données local&#xa0;:</translation>
    </message>
    <message>
        <source>Browse for the local data folder</source>
        <translation>Choisir le dossier de données local</translation>
    </message>
    <message>
        <source>List File:</source>
        <translation>Fichier de liste&#xa0;:</translation>
    </message>
    <message>
        <source>Browse for the list file</source>
        <translation>Choisir le fichier de liste</translation>
    </message>
    <message>
        <source>Update Archive Name:</source>
        <translation>Nom de l’archive de mise à jour&#xa0;:</translation>
    </message>
    <message>
        <source>Update Server:</source>
        <translation>Serveur de mise à jour&#xa0;:</translation>
    </message>
    <message>
        <source>First Run Date:</source>
        <translation>Date de première utilisation&#xa0;:</translation>
    </message>
    <message>
        <source>Nickname:</source>
        <translation>Pseudonyme&#xa0;:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Local Data Folder</source>
        <translation>Dossier de données local</translation>
    </message>
    <message>
        <source>A list of sources cannot keep a double quote, so &apos; takes its place.</source>
        <translation>Une liste de sources ne peut pas garder de guillemet double&#xa0;; &apos; prend donc sa place.</translation>
    </message>
    <message>
        <source>Local File Search Locations</source>
        <translation>Emplacements de recherche locaux</translation>
    </message>
    <message>
        <source>Offline Search List files</source>
        <translation>Fichiers de liste hors ligne</translation>
    </message>
    <message>
        <source>Path to List file</source>
        <translation>Chemin du fichier de liste</translation>
    </message>
    <message>
        <source>Add &amp;Files...</source>
        <translation>Ajouter des &amp;fichiers...</translation>
    </message>
    <message>
        <source>Pick listing files, which are in the list at once</source>
        <translation>Choisir des fichiers de liste, aussitôt ajoutés à la liste</translation>
    </message>
    <message>
        <source>Not in the list yet: Add puts the file there.</source>
        <translation>Pas encore dans la liste&#xa0;: «&#xa0;Ajouter&#xa0;» y met le fichier.</translation>
    </message>
    <message>
        <source>Not in the list yet: Add puts the folder there.</source>
        <translation>Pas encore dans la liste&#xa0;: «&#xa0;Ajouter&#xa0;» y met le dossier.</translation>
    </message>
    <message>
        <source>All Files</source>
        <translation>Tous les fichiers</translation>
    </message>
    <message>
        <source>Folders are added in File, Add/Edit Local Folder To Search List.</source>
        <translation>Les dossiers s’ajoutent dans Fichier, Ajouter/modifier un dossier local de la liste de recherche.</translation>
    </message>
    <message>
        <source>Listing files are added in File, Add/Edit Offline List files.</source>
        <translation>Les fichiers de liste s’ajoutent dans Fichier, Ajouter/modifier des fichiers de liste hors ligne.</translation>
    </message>
    <message>
        <source>Browse for a File Location Path</source>
        <translation>Choisir le chemin d’un emplacement</translation>
    </message>
    <message>
        <source>Search locations</source>
        <translation>Emplacements de recherche</translation>
    </message>
    <message>
        <source>Move Selected Up</source>
        <translation>Monter la sélection</translation>
    </message>
    <message>
        <source>Move Selected Down</source>
        <translation>Descendre la sélection</translation>
    </message>
    <message>
        <source>Delete Selected</source>
        <translation>Supprimer la sélection</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Add Fol&amp;ders...</source>
        <translation>Ajouter des &amp;dossiers...</translation>
    </message>
    <message>
        <source>Pick folders, which are in the list at once</source>
        <translation>Choisir des dossiers, aussitôt ajoutés à la liste</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Chemin</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>A&amp;nnuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>The Join Date / Time format can not be understood, check the format.</source>
        <translation>La date et l’heure de première utilisation ne sont pas comprises&#xa0;; vérifiez leur format.</translation>
    </message>
    <message>
        <source>The Local Data Folder path is invalid.<byte value="xd"/>
<byte value="xd"/>
Please Pick a valid path!</source>
        <translation>Le chemin du dossier de données local n’est pas valide.<byte value="xd"/>
<byte value="xd"/>
Veuillez choisir un chemin valide&#xa0;!</translation>
    </message>
    <message>
        <source>today</source>
        <translation>d’aujourd’hui</translation>
    </message>
    <message>
        <source>yesterday</source>
        <translation>d’hier</translation>
    </message>
    <message numerus="yes">
        <source>%1 days old</source>
        <translation>
            <numerusform>vieille de %1 jour</numerusform>
            <numerusform>vieille de %1 jours</numerusform>
        </translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>du %1</translation>
    </message>
    <message>
        <source>The file was last changed on %1.</source>
        <translation>Le fichier a été modifié pour la dernière fois le %1.</translation>
    </message>
    <message>
        <source>The file has %1 and was last changed on %2.</source>
        <translation>Le fichier a %1 et a été modifié pour la dernière fois le %2.</translation>
    </message>
    <message>
        <source>Its listing was last changed on %1.</source>
        <translation>Sa liste a été modifiée pour la dernière fois le %1.</translation>
    </message>
    <message>
        <source>Its listing has %1 and was last changed on %2.</source>
        <translation>Sa liste a %1 et a été modifiée pour la dernière fois le %2.</translation>
    </message>
    <message>
        <source>not there</source>
        <translation>absent</translation>
    </message>
    <message>
        <source>not listed yet</source>
        <translation>pas encore listé</translation>
    </message>
    <message>
        <source>The file is not there.</source>
        <translation>Le fichier n’est pas là.</translation>
    </message>
    <message>
        <source>The folder is there.</source>
        <translation>Le dossier est là.</translation>
    </message>
    <message>
        <source>The folder is not there.</source>
        <translation>Le dossier n’est pas là.</translation>
    </message>
    <message>
        <source>It has no listing yet; a rescan makes it.</source>
        <translation>Il n’a pas encore de liste&#xa0;; une relecture la fait.</translation>
    </message>
    <message>
        <source>Invalid procedure call or argument</source>
        <translation>Appel de procédure ou argument incorrect</translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation>Dépassement de capacité</translation>
    </message>
    <message>
        <source>Subscript out of range</source>
        <translation>Indice hors limites</translation>
    </message>
    <message>
        <source>Division by zero</source>
        <translation>Division par zéro</translation>
    </message>
    <message>
        <source>Type mismatch</source>
        <translation>Incompatibilité de type</translation>
    </message>
    <message>
        <source>Bad file name or number</source>
        <translation>Nom ou numéro de fichier incorrect</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>Fichier introuvable</translation>
    </message>
    <message>
        <source>Device I/O error</source>
        <translation>Erreur d’entrée/sortie de périphérique</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Disque plein</translation>
    </message>
    <message>
        <source>Input past end of file</source>
        <translation>Lecture après la fin du fichier</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Permission refusée</translation>
    </message>
    <message>
        <source>Path/File access error</source>
        <translation>Erreur d’accès au chemin/fichier</translation>
    </message>
    <message>
        <source>Path not found</source>
        <translation>Chemin introuvable</translation>
    </message>
    <message>
        <source>Unknown fault</source>
        <translation>Erreur inconnue</translation>
    </message>
    <message>
        <source>Run-time error &apos;%1&apos;: %2</source>
        <translation>Erreur d’exécution &apos;%1&apos;&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 was cut while it was read</source>
        <translation>%1 a été tronqué pendant sa lecture</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>entrée standard</translation>
    </message>
    <message>
        <source>Quorvin Utility Help</source>
        <translation>Aide de Quorvin Utility</translation>
    </message>
    <message>
        <source>Release Information</source>
        <translation>Notes de version</translation>
    </message>
    <message>
        <source>Program Usage</source>
        <translation>Utilisation du programme</translation>
    </message>
    <message>
        <source>%1 opens after this window is closed.</source>
        <translation>%1 s’ouvrira quand cette fenêtre sera fermée.</translation>
    </message>
    <message>
        <source>Loading %1 (Esc stops)</source>
        <translation>Chargement de %1 (Échap arrête)</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Accueil</translation>
    </message>
    <message>
        <source>Home: program usage</source>
        <translation>Accueil&#xa0;: utilisation du programme</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Search the index of the help</source>
        <translation>Chercher dans l’index de l’aide</translation>
    </message>
    <message>
        <source>Stop loading</source>
        <translation>Arrêter le chargement</translation>
    </message>
    <message>
        <source>More buttons</source>
        <translation>Autres boutons</translation>
    </message>
    <message>
        <source>Help toolbar</source>
        <translation>Barre d’outils de l’aide</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Visited addresses</source>
        <translation>Adresses visitées</translation>
    </message>
    <message>
        <source>&amp;Address:</source>
        <translation>&amp;Adresse&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Open it now</source>
        <translation>&amp;Ouvrir maintenant</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Chargement</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Page</translation>
    </message>
    <message>
        <source>Scroll the page down</source>
        <translation>Faire défiler la page vers le bas</translation>
    </message>
    <message>
        <source>Scroll the page sideways</source>
        <translation>Faire défiler la page latéralement</translation>
    </message>
    <message>
        <source>Free software under the GNU General Public License, version 2 or later</source>
        <translation>Logiciel libre sous la licence publique générale GNU, version 2 ou ultérieure</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>À propos de %1</translation>
    </message>
    <message>
        <source>Logo: a lens over a list</source>
        <translation>Logo&#xa0;: une loupe sur une liste</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Runs on %1</source>
        <translation>Fonctionne sur %1</translation>
    </message>
    <message>
        <source>Find on this page</source>
        <translation>Rechercher dans cette page</translation>
    </message>
    <message>
        <source>Find on this &amp;page:</source>
        <translation>Rechercher dans cette &amp;page&#xa0;:</translation>
    </message>
    <message>
        <source>P&amp;revious</source>
        <translation>P&amp;récédent</translation>
    </message>
    <message>
        <source>Previous match (Shift+F3)</source>
        <translation>Occurrence précédente (Maj+F3)</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Suivant</translation>
    </message>
    <message>
        <source>Next match (F3)</source>
        <translation>Occurrence suivante (F3)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Close the find bar (Esc)</source>
        <translation>Fermer la barre de recherche (Échap)</translation>
    </message>
    <message>
        <source>Continued from the bottom</source>
        <translation>Suite depuis le bas</translation>
    </message>
    <message>
        <source>Continued from the top</source>
        <translation>Suite depuis le haut</translation>
    </message>
    <message>
        <source>Not on this page</source>
        <translation>Pas dans cette page</translation>
    </message>
    <message>
        <source>The page could not be fetched</source>
        <translation>La page n’a pas pu être obtenue</translation>
    </message>
    <message>
        <source>Check the address and your connection, then choose Refresh (F5) to try again.</source>
        <translation>Vérifiez l’adresse et votre connexion, puis choisissez Actualiser (F5) pour réessayer.</translation>
    </message>
    <message>
        <source>This help page is missing</source>
        <translation>Cette page d’aide manque</translation>
    </message>
    <message>
        <source>The help pages come with the program and are kept in its folder. If they have been moved or removed, install the program again.</source>
        <translation>Les pages d’aide accompagnent le programme et sont gardées dans son dossier. Si elles ont été déplacées ou supprimées, réinstallez le programme.</translation>
    </message>
    <message>
        <source>This address cannot be opened here</source>
        <translation>Cette adresse ne peut pas être ouverte ici</translation>
    </message>
    <message>
        <source>This window shows the program&apos;s help pages and plain web pages (http and https). It opens no other files.</source>
        <translation>Cette fenêtre montre les pages d’aide du programme et de simples pages web (http et https). Elle n’ouvre aucun autre fichier.</translation>
    </message>
    <message>
        <source>The server answered: %1 %2</source>
        <translation>Le serveur a répondu&#xa0;: %1&#xa0;%2</translation>
    </message>
    <message>
        <source>The server stopped sending data.</source>
        <translation>Le serveur a cessé d’envoyer des données.</translation>
    </message>
    <message>
        <source>The page took too long to load.</source>
        <translation>Le chargement de la page a été trop long.</translation>
    </message>
    <message>
        <source>data of an unknown type</source>
        <translation>des données d’un type inconnu</translation>
    </message>
    <message>
        <source>The server sent %1; only text pages can be shown here.</source>
        <translation>Le serveur a envoyé %1&#xa0;; seules des pages de texte peuvent être affichées ici.</translation>
    </message>
    <message>
        <source>The page is larger than %1.</source>
        <translation>La page dépasse %1.</translation>
    </message>
    <message>
        <source>Earlier versions</source>
        <translation>Versions antérieures</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Entries</source>
        <translation>Entrées</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Complète</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>endommagée</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>oui</translation>
    </message>
    <message>
        <source>no</source>
        <translation>non</translation>
    </message>
    <message>
        <source>The listing history cannot be read: %1</source>
        <translation>L’historique des listes ne peut pas être lu&#xa0;: %1</translation>
    </message>
    <message>
        <source>Listing History</source>
        <translation>Historique des listes</translation>
    </message>
    <message>
        <source>Listing</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>Listings that have earlier versions</source>
        <translation>Listes qui ont des versions antérieures</translation>
    </message>
    <message>
        <source>&amp;Listing:</source>
        <translation>&amp;Liste&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Restaurer</translation>
    </message>
    <message>
        <source>There are no earlier versions yet. One is kept whenever a rescan or an update replaces a listing by another.</source>
        <translation>Il n’y a pas encore de version antérieure. Il en est gardé une chaque fois qu’une relecture ou une mise à jour remplace une liste par une autre.</translation>
    </message>
    <message>
        <source>Now: %1</source>
        <translation>À présent&#xa0;: %1</translation>
    </message>
    <message>
        <source>The listing itself is not there now.</source>
        <translation>La liste elle-même n’est pas là en ce moment.</translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 entries, %3, complete</source>
        <translation>
            <numerusform>%1, %2 entrée, %3, complète</numerusform>
            <numerusform>%1, %2 entrées, %3, complète</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 entries, %3, incomplete</source>
        <translation>
            <numerusform>%1, %2 entrée, %3, incomplète</numerusform>
            <numerusform>%1, %2 entrées, %3, incomplète</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 differs from a version that is missing</source>
        <translation>%1 diffère d’une version qui manque</translation>
    </message>
    <message>
        <source>There is not enough memory</source>
        <translation>Il n’y a pas assez de mémoire</translation>
    </message>
    <message>
        <source>The listing cannot be restored now: a refresh is running.</source>
        <translation>La liste ne peut pas être restaurée maintenant&#xa0;: une actualisation est en cours.</translation>
    </message>
    <message>
        <source>%1 is damaged</source>
        <translation>%1 est endommagé</translation>
    </message>
    <message>
        <source>The listing could not be packed: %1</source>
        <translation>La liste n’a pas pu être compressée&#xa0;: %1</translation>
    </message>
    <message>
        <source>the listing changed while it was read</source>
        <translation>la liste a changé pendant sa lecture</translation>
    </message>
    <message>
        <source>No audio player was found. Install one of Audacious, VLC, Strawberry, Clementine, DeaDBeeF or Rhythmbox, or set EnqueueCommand in the settings to the command of your player.</source>
        <translation>Aucun lecteur audio n’a été trouvé. Installez Audacious, VLC, Strawberry, Clementine, DeaDBeeF ou Rhythmbox, ou donnez à EnqueueCommand, dans les réglages, la commande de votre lecteur.</translation>
    </message>
    <message>
        <source>The audio player could not be started. Please check the command in the setting EnqueueCommand.</source>
        <translation>Le lecteur audio n’a pas pu être lancé. Veuillez vérifier la commande du réglage EnqueueCommand.</translation>
    </message>
    <message>
        <source>Bad file name Launching: %1<byte value="xd"/>
The file may have been renamed, deleted or moved. Try rescanning the file lists.</source>
        <translation>Nom de fichier incorrect à l’ouverture&#xa0;: %1<byte value="xd"/>
Le fichier a peut-être été renommé, supprimé ou déplacé. Essayez de relire les listes de fichiers.</translation>
    </message>
    <message>
        <source>Launch Error: %1%2</source>
        <translation>Erreur à l’ouverture&#xa0;: %1%2</translation>
    </message>
    <message>
        <source>en</source>
        <extracomment>The code of the language that you translate into, such as de</extracomment>
        <translation>fr</translation>
    </message>
    <message>
        <source>Search in these hits:</source>
        <translation>Chercher dans ces résultats&#xa0;:</translation>
    </message>
    <message>
        <source>Match</source>
        <translation>Taux</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>From the listing of an online source</source>
        <translation>De la liste d’une source en ligne</translation>
    </message>
    <message>
        <source>From the main data file</source>
        <translation>Du fichier de données principal</translation>
    </message>
    <message>
        <source>From an offline listing</source>
        <translation>D’une liste hors ligne</translation>
    </message>
    <message>
        <source>No hit holds all of these words.</source>
        <translation>Aucun résultat ne contient tous ces mots.</translation>
    </message>
    <message>
        <source>This page shows its hits with a script of its own; please allow it to run.</source>
        <translation>Cette page affiche ses résultats avec un script à elle&#xa0;; veuillez l’autoriser.</translation>
    </message>
    <message>
        <source>Folder of your own</source>
        <translation>Un de vos dossiers</translation>
    </message>
    <message>
        <source>Main data file</source>
        <translation>Fichier de données principal</translation>
    </message>
    <message>
        <source>Offline listing</source>
        <translation>Liste hors ligne</translation>
    </message>
    <message>
        <source>Not known: only folders of your own can be reached</source>
        <translation>Inconnu&#xa0;: seuls vos propres dossiers sont accessibles</translation>
    </message>
    <message>
        <source>Not found on a connected drive</source>
        <translation>Introuvable sur les lecteurs connectés</translation>
    </message>
    <message>
        <source>Is there</source>
        <translation>Est là</translation>
    </message>
    <message>
        <source>Words found</source>
        <translation>Mots trouvés</translation>
    </message>
    <message>
        <source>1 of 1 word</source>
        <translation>1 mot sur 1</translation>
    </message>
    <message>
        <source>Size in bytes</source>
        <translation>Taille en octets</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Date et heure</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Source</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>The file is on a connected drive:</source>
        <translation>Le fichier est sur un lecteur connecté&#xa0;:</translation>
    </message>
    <message>
        <source>In the catalogue: %1</source>
        <translation>Dans le catalogue&#xa0;: %1</translation>
    </message>
    <message>
        <source>Listing: %1</source>
        <translation>Liste&#xa0;: %1</translation>
    </message>
    <message>
        <source>The file is on the volume &quot;%1&quot;. Insert that disk to get at it.</source>
        <translation>Le fichier est sur le volume «&#xa0;%1&#xa0;». Insérez ce disque pour y accéder.</translation>
    </message>
    <message>
        <source>Catalogued from: %1</source>
        <translation>Catalogué depuis&#xa0;: %1</translation>
    </message>
    <message>
        <source>The folder of &quot;%1&quot; is connected, but the file is not there any more. It may have been renamed, moved or deleted.</source>
        <translation>Le dossier de «&#xa0;%1&#xa0;» est connecté, mais le fichier n’y est plus. Il a peut-être été renommé, déplacé ou supprimé.</translation>
    </message>
    <message>
        <source>The file is on the volume &quot;%1&quot;, which is not connected. Insert or connect it to get at the file.</source>
        <translation>Le fichier est sur le volume «&#xa0;%1&#xa0;», qui n’est pas connecté. Insérez-le ou connectez-le pour accéder au fichier.</translation>
    </message>
    <message>
        <source>Sorted by %1, ascending</source>
        <translation>Trié par %1, croissant</translation>
    </message>
    <message>
        <source>Sorted by %1, descending</source>
        <translation>Trié par %1, décroissant</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Valeurs</translation>
    </message>
    <message>
        <source>Scroll the values</source>
        <translation>Faire défiler les valeurs</translation>
    </message>
    <message>
        <source>Properties of %1</source>
        <translation>Propriétés de %1</translation>
    </message>
    <message>
        <source>Line in the listing</source>
        <translation>Ligne dans la liste</translation>
    </message>
    <message>
        <source>C&amp;opy All</source>
        <translation>T&amp;out copier</translation>
    </message>
    <message>
        <source>Not in the listing any more</source>
        <translation>N’est plus dans la liste</translation>
    </message>
    <message>
        <source>More than %1 hits: sorted by their text in lower case</source>
        <translation>Plus de %1 résultats&#xa0;: triés par leur texte en minuscules</translation>
    </message>
    <message>
        <source>holds too many files; %1 name was left out</source>
        <translation>contient trop de fichiers&#xa0;; %1 nom a été omis</translation>
    </message>
    <message numerus="yes">
        <source>holds too many files; %1 names were left out</source>
        <translation>
            <numerusform>contient trop de fichiers&#xa0;; %1 nom a été omis</numerusform>
            <numerusform>contient trop de fichiers&#xa0;; %1 noms ont été omis</numerusform>
        </translation>
    </message>
    <message>
        <source>holds too many sub-folders; %1 name was left out</source>
        <translation>contient trop de sous-dossiers&#xa0;; %1 nom a été omis</translation>
    </message>
    <message numerus="yes">
        <source>holds too many sub-folders; %1 names were left out</source>
        <translation>
            <numerusform>contient trop de sous-dossiers&#xa0;; %1 nom a été omis</numerusform>
            <numerusform>contient trop de sous-dossiers&#xa0;; %1 noms ont été omis</numerusform>
        </translation>
    </message>
    <message>
        <source>Contains unsuported characters represented by the ?</source>
        <translation>Contient des caractères non pris en charge, représentés par le&#xa0;?</translation>
    </message>
    <message>
        <source>was left out: its path is too long for a listing</source>
        <translation>a été omis&#xa0;: son chemin est trop long pour une liste</translation>
    </message>
    <message>
        <source>is too large for a listing; its size was written as %1</source>
        <translation>est trop grand pour une liste&#xa0;; la taille écrite est %1</translation>
    </message>
    <message>
        <source>Indexing: %1</source>
        <translation>Lecture&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 file</source>
        <translation>%1 fichier</translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1 fichier</numerusform>
            <numerusform>%1 fichiers</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 in %2 folder</source>
        <comment>files</comment>
        <translation>%1 dans %2 dossier</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %2 folders</source>
        <comment>files</comment>
        <translation>
            <numerusform>%1 dans %2 dossier</numerusform>
            <numerusform>%1 dans %2 dossiers</numerusform>
        </translation>
    </message>
    <message>
        <source>Updating online file lists... %1 of %2</source>
        <extracomment>Keep the three dots and the blank behind them.</extracomment>
        <translation>Actualisation des listes en ligne... %1 sur %2</translation>
    </message>
    <message>
        <source>The listing of %1 was not made, since it would overwrite %2; please give it another description</source>
        <translation>La liste de %1 n’a pas été faite, car elle écraserait %2&#xa0;; veuillez lui donner une autre description</translation>
    </message>
    <message>
        <source>%1 not found; the listing of %2 was kept</source>
        <translation>%1 introuvable&#xa0;; la liste de %2 a été gardée</translation>
    </message>
    <message>
        <source>The listing of %1 from %2 was replaced by that from %3, which has the same description; please give one of them another description</source>
        <translation>La liste de %1 venant de %2 a été remplacée par celle de %3, qui a la même description&#xa0;; veuillez donner à l’un des deux une autre description</translation>
    </message>
    <message>
        <source>The earlier listing of %1 could not be kept in the listing history: %2</source>
        <translation>La liste antérieure de %1 n’a pas pu être gardée dans l’historique&#xa0;: %2</translation>
    </message>
    <message>
        <source>The listing of %1 is incomplete, since the rescan was stopped</source>
        <translation>La liste de %1 est incomplète, car la relecture a été arrêtée</translation>
    </message>
    <message>
        <source>%1 holds no files any more; if its drive is not connected, connect it and rescan. The listing of %2 is empty now</source>
        <translation>%1 ne contient plus de fichiers&#xa0;; si son lecteur n’est pas connecté, connectez-le et relancez la relecture. La liste de %2 est vide à présent</translation>
    </message>
    <message numerus="yes">
        <source>File, Listing History brings back the one of %1 with %2 entries</source>
        <translation>
            <numerusform>Fichier, Historique des listes fait revenir celle du %1 avec %2 entrée</numerusform>
            <numerusform>Fichier, Historique des listes fait revenir celle du %1 avec %2 entrées</numerusform>
        </translation>
    </message>
    <message>
        <source>The local lists cannot be refreshed now: another refresh is running.</source>
        <translation>Les listes locales ne peuvent pas être actualisées maintenant&#xa0;: une autre actualisation est en cours.</translation>
    </message>
    <message>
        <source>Error Refreshing Local Lists:%1</source>
        <translation>Erreur pendant l’actualisation des listes locales&#xa0;: %1</translation>
    </message>
    <message>
        <source>(there is not enough memory)</source>
        <translation>(il n’y a pas assez de mémoire)</translation>
    </message>
    <message>
        <source>(too many files are open)</source>
        <translation>(trop de fichiers sont ouverts)</translation>
    </message>
    <message>
        <source>holds &quot;%1&quot;; a search misreads its line</source>
        <translation>contient «&#xa0;%1&#xa0;»&#xa0;; une recherche lit mal sa ligne</translation>
    </message>
    <message>
        <source>File not found (invalid name)</source>
        <translation>Fichier introuvable (nom incorrect)</translation>
    </message>
    <message>
        <source>In %1:</source>
        <translation>Dans %1&#xa0;:</translation>
    </message>
    <message>
        <source>Access Error (invalid name or permission)</source>
        <translation>Erreur d’accès (nom incorrect ou permission manquante)</translation>
    </message>
    <message>
        <source>Left out: %1 of %2 files in %3</source>
        <translation>Omis&#xa0;: %1 des %2 fichiers de %3</translation>
    </message>
    <message>
        <source>Left out: %1 of %2 sub-folders in %3</source>
        <translation>Omis&#xa0;: %1 des %2 sous-dossiers de %3</translation>
    </message>
    <message>
        <source>Error Number: %1 %2<byte value="xd"/>
Error reading:%3 Skipping.</source>
        <translation>Erreur numéro&#xa0;: %1&#xa0;%2<byte value="xd"/>
Erreur de lecture&#xa0;: %3 Ignoré.</translation>
    </message>
    <message>
        <source>there is not enough memory for it</source>
        <translation>il n’y a pas assez de mémoire pour cela</translation>
    </message>
    <message>
        <source>the program that draws metafiles has not answered as it should</source>
        <translation>le programme qui dessine les métafichiers n’a pas répondu comme il devait</translation>
    </message>
    <message>
        <source>it is larger than 64 MB</source>
        <translation>il dépasse 64 Mo</translation>
    </message>
    <message>
        <source>a bitmap in it has an unknown header</source>
        <translation>une image en son sein a un en-tête inconnu</translation>
    </message>
    <message>
        <source>a bitmap in it is empty</source>
        <translation>une image en son sein est vide</translation>
    </message>
    <message>
        <source>a bitmap in it is too large</source>
        <translation>une image en son sein est trop grande</translation>
    </message>
    <message>
        <source>JPEG and PNG pictures in it</source>
        <translation>images JPEG et PNG incluses</translation>
    </message>
    <message>
        <source>a bitmap in it cannot be read</source>
        <translation>une image en son sein ne peut pas être lue</translation>
    </message>
    <message>
        <source>a bitmap in it is not monochrome</source>
        <translation>une image en son sein n’est pas monochrome</translation>
    </message>
    <message>
        <source>its scale makes no sense</source>
        <translation>son échelle n’a pas de sens</translation>
    </message>
    <message>
        <source>its header is too short</source>
        <translation>son en-tête est trop court</translation>
    </message>
    <message>
        <source>it is damaged or cut short</source>
        <translation>le fichier est endommagé ou tronqué</translation>
    </message>
    <message>
        <source>damaged parts</source>
        <translation>parties endommagées</translation>
    </message>
    <message>
        <source>flood fills</source>
        <translation>remplissages</translation>
    </message>
    <message>
        <source>EMF+ drawings</source>
        <translation>dessins EMF+</translation>
    </message>
    <message>
        <source>OpenGL drawings</source>
        <translation>dessins OpenGL</translation>
    </message>
    <message>
        <source>mirroring</source>
        <translation>symétrie</translation>
    </message>
    <message>
        <source>it has too many objects</source>
        <translation>il a trop d’objets</translation>
    </message>
    <message>
        <source>bitmaps mixed through masks</source>
        <translation>images mêlées à travers des masques</translation>
    </message>
    <message>
        <source>colours of palettes</source>
        <translation>couleurs de palettes</translation>
    </message>
    <message>
        <source>a region in it has too many parts</source>
        <translation>une région en son sein a trop de parties</translation>
    </message>
    <message>
        <source>it uses an object that it has not made</source>
        <translation>il utilise un objet qu’il n’a pas créé</translation>
    </message>
    <message>
        <source>an arc in it makes no sense</source>
        <translation>un arc en son sein n’a pas de sens</translation>
    </message>
    <message>
        <source>it needs too much memory</source>
        <translation>il demande trop de mémoire</translation>
    </message>
    <message>
        <source>it has no size</source>
        <translation>il n’a pas de taille</translation>
    </message>
    <message>
        <source>it saves its state too often</source>
        <translation>il sauvegarde son état trop souvent</translation>
    </message>
    <message>
        <source>it cuts its drawing in an unknown way</source>
        <translation>il découpe son dessin d’une manière inconnue</translation>
    </message>
    <message>
        <source>rare raster operations</source>
        <translation>opérations de trame rares</translation>
    </message>
    <message>
        <source>a bitmap in it has no size</source>
        <translation>une image en son sein n’a pas de taille</translation>
    </message>
    <message>
        <source>text by glyph numbers</source>
        <translation>texte par numéros de glyphes</translation>
    </message>
    <message>
        <source>letters of symbol fonts</source>
        <translation>lettres de polices de symboles</translation>
    </message>
    <message>
        <source>it is not a metafile</source>
        <translation>ce n’est pas un métafichier</translation>
    </message>
    <message>
        <source>it does not say how large it is</source>
        <translation>il ne dit pas sa taille</translation>
    </message>
    <message>
        <source>patterns in the form of a device</source>
        <translation>motifs sous la forme d’un périphérique</translation>
    </message>
    <message>
        <source>bitmaps in the form of a device</source>
        <translation>images sous la forme d’un périphérique</translation>
    </message>
    <message>
        <source>the answer names no lists</source>
        <translation>la réponse ne nomme aucune liste</translation>
    </message>
    <message>
        <source>The answer is not that of a list exchange</source>
        <translation>La réponse n’est pas celle d’un échange de listes</translation>
    </message>
    <message>
        <source>The name of a list has no end</source>
        <translation>Le nom d’une liste n’a pas de fin</translation>
    </message>
    <message>
        <source>The names of the lists have no end</source>
        <translation>Les noms des listes n’ont pas de fin</translation>
    </message>
    <message>
        <source>1 list</source>
        <translation>1 liste</translation>
    </message>
    <message numerus="yes">
        <source>%1 lists</source>
        <translation>
            <numerusform>%1 liste</numerusform>
            <numerusform>%1 listes</numerusform>
        </translation>
    </message>
    <message>
        <source>No lists came from %1.</source>
        <translation>Aucune liste n’est venue de %1.</translation>
    </message>
    <message>
        <source>The archive holds 1 listing.</source>
        <translation>L’archive contient 1 liste.</translation>
    </message>
    <message numerus="yes">
        <source>The archive holds %1 listings.</source>
        <translation>
            <numerusform>L’archive contient %1 liste.</numerusform>
            <numerusform>L’archive contient %1 listes.</numerusform>
        </translation>
    </message>
    <message>
        <source>The archives hold 1 listing.</source>
        <translation>Les archives contiennent 1 liste.</translation>
    </message>
    <message numerus="yes">
        <source>The archives hold %1 listings.</source>
        <translation>
            <numerusform>Les archives contiennent %1 liste.</numerusform>
            <numerusform>Les archives contiennent %1 listes.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is room for 1 more offline source.</source>
        <translation>Il y a de la place pour 1 source hors ligne de plus.</translation>
    </message>
    <message numerus="yes">
        <source>There is room for %1 more offline sources.</source>
        <translation>
            <numerusform>Il y a de la place pour %1 source hors ligne de plus.</numerusform>
            <numerusform>Il y a de la place pour %1 sources hors ligne de plus.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 came from %2 into the folder</source>
        <translation>Arrivée&#xa0;: %1 de la part de %2, dans le dossier</translation>
    </message>
    <message>
        <source>Add the received lists to the offline sources, so that the next search includes them?</source>
        <translation>Ajouter les listes reçues aux sources hors ligne, pour que la prochaine recherche les comprenne&#xa0;?</translation>
    </message>
    <message>
        <source>1 list was left out, since unpacking was cancelled. The archives stay in the folder.</source>
        <translation>1 liste a été omise, car la décompression a été annulée. Les archives restent dans le dossier.</translation>
    </message>
    <message numerus="yes">
        <source>%1 lists were left out, since unpacking was cancelled. The archives stay in the folder.</source>
        <translation>
            <numerusform>%1 liste a été omise, car la décompression a été annulée. Les archives restent dans le dossier.</numerusform>
            <numerusform>%1 listes ont été omises, car la décompression a été annulée. Les archives restent dans le dossier.</numerusform>
        </translation>
    </message>
    <message>
        <source>The archive of &quot;%1&quot; holds no listing.</source>
        <translation>L’archive de «&#xa0;%1&#xa0;» ne contient pas de liste.</translation>
    </message>
    <message>
        <source>%1 has a name that no source can have.</source>
        <translation>%1 a un nom qu’aucune source ne peut avoir.</translation>
    </message>
    <message>
        <source>%1 from %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>There is no room for more than %1 offline sources. The received lists stay unpacked beside its archives.</source>
        <translation>Il n’y a pas de place pour plus de %1 sources hors ligne. Les listes reçues restent décompressées à côté de leurs archives.</translation>
    </message>
    <message>
        <source>Unpacking %1</source>
        <translation>Décompression de %1</translation>
    </message>
    <message>
        <source>One run of the program can ask for about 1000 lists. Start it again to get the others.</source>
        <translation>Une exécution du programme peut demander environ 1000 listes. Relancez-le pour obtenir les autres.</translation>
    </message>
    <message>
        <source>The archive of %1 has no end</source>
        <translation>L’archive de %1 n’a pas de fin</translation>
    </message>
    <message>
        <source>The peer sent no archive of %1.</source>
        <translation>Le pair n’a pas envoyé d’archive de %1.</translation>
    </message>
    <message>
        <source>The archive of %1 did not arrive complete, and was not kept.</source>
        <translation>L’archive de %1 n’est pas arrivée complète et n’a pas été gardée.</translation>
    </message>
    <message>
        <source>The peer could not be reached: %1</source>
        <translation>Le pair n’a pas pu être joint&#xa0;: %1</translation>
    </message>
    <message>
        <source>The peer ended the connection before everything had arrived.</source>
        <translation>Le pair a mis fin à la connexion avant que tout soit arrivé.</translation>
    </message>
    <message>
        <source>The peer has stopped sending before everything had arrived.</source>
        <translation>Le pair a cessé d’envoyer avant que tout soit arrivé.</translation>
    </message>
    <message>
        <source>The peer has not sent anything for %1 seconds.</source>
        <translation>Le pair n’a rien envoyé depuis %1 secondes.</translation>
    </message>
    <message>
        <source>The peer could not be reached within %1 seconds.</source>
        <translation>Le pair n’a pas pu être joint en %1 secondes.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Getting Lists</source>
        <translation>Obtention des listes</translation>
    </message>
    <message>
        <source>Peer: %1</source>
        <translation>Pair&#xa0;: %1</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Connexion...</translation>
    </message>
    <message>
        <source>Asking for the lists...</source>
        <translation>Demande des listes...</translation>
    </message>
    <message>
        <source>List %1 of %2: %3</source>
        <translation>Liste %1 sur %2&#xa0;: %3</translation>
    </message>
    <message numerus="yes">
        <source>%1 bytes</source>
        <translation>
            <numerusform>%1 octet</numerusform>
            <numerusform>%1 octets</numerusform>
        </translation>
    </message>
    <message>
        <source>There was 1 more problem.</source>
        <translation>Il y a eu 1 autre problème.</translation>
    </message>
    <message numerus="yes">
        <source>There were %1 more problems.</source>
        <translation>
            <numerusform>Il y a eu %1 autre problème.</numerusform>
            <numerusform>Il y a eu %1 autres problèmes.</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the name or address of a computer.</source>
        <translation>«&#xa0;%1&#xa0;» n’est ni le nom ni l’adresse d’un ordinateur.</translation>
    </message>
    <message>
        <source>Your lists are not shared: port %1 could not be opened.<byte value="xd"/>
<byte value="xd"/>
%2</source>
        <translation>Vos listes ne sont pas partagées&#xa0;: le port %1 n’a pas pu être ouvert.<byte value="xd"/>
<byte value="xd"/>
%2</translation>
    </message>
    <message>
        <source>They are packed when the running work has ended.</source>
        <translation>Elles seront compressées quand le travail en cours sera terminé.</translation>
    </message>
    <message>
        <source>Your lists are shared.</source>
        <translation>Vos listes sont partagées.</translation>
    </message>
    <message>
        <source>%1 was not made by sharing. It was kept, and peers get it as it is.</source>
        <translation>%1 n’a pas été fait par le partage. L’archive a été gardée, et les pairs la reçoivent telle quelle.</translation>
    </message>
    <message>
        <source>Not all could be packed:</source>
        <translation>Certaines n’ont pas pu être compressées&#xa0;:</translation>
    </message>
    <message>
        <source>Your lists are shared on port %1 of this address: %2</source>
        <translation>Vos listes sont partagées sur le port %1 de cette adresse&#xa0;: %2</translation>
    </message>
    <message>
        <source>Your lists are shared on port %1 of these addresses: %2</source>
        <translation>Vos listes sont partagées sur le port %1 de ces adresses&#xa0;: %2</translation>
    </message>
    <message>
        <source>a pipe for signals</source>
        <translation>un tube pour les signaux</translation>
    </message>
    <message>
        <source>Image Preview</source>
        <translation>Aperçu de l’image</translation>
    </message>
    <message>
        <source>Loading %1...</source>
        <translation>Chargement de %1...</translation>
    </message>
    <message>
        <source>Drawn without: %1.</source>
        <translation>Dessiné sans&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Picture frame</source>
        <translation>Cadre de l’image</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Picture %1</source>
        <translation>Image %1</translation>
    </message>
    <message>
        <source>%1 cannot be shown: %2.</source>
        <translation>%1 ne peut pas être affiché&#xa0;: %2.</translation>
    </message>
    <message>
        <source>it is damaged, or of a kind that is not supported</source>
        <translation>il est endommagé, ou d’un genre non pris en charge</translation>
    </message>
    <message>
        <source>with %1 by %2 pixels it is larger than 256 megapixels</source>
        <translation>avec %1 sur %2 pixels, l’image dépasse 256 mégapixels</translation>
    </message>
    <message>
        <source>it is not a bitmap, icon, metafile, JPEG or GIF picture</source>
        <translation>ce n’est pas une image bitmap, icône, métafichier, JPEG ou GIF</translation>
    </message>
    <message>
        <source>its loading was cancelled</source>
        <translation>son chargement a été annulé</translation>
    </message>
    <message>
        <source>drawing it takes too long</source>
        <translation>son dessin prend trop de temps</translation>
    </message>
    <message>
        <source>the program that draws metafiles cannot be started</source>
        <translation>le programme qui dessine les métafichiers ne peut pas être lancé</translation>
    </message>
    <message>
        <source>it is damaged, or drawing it needs too much memory or time</source>
        <translation>il est endommagé, ou le dessiner demande trop de mémoire ou de temps</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Bilan</translation>
    </message>
    <message>
        <source>Scroll the results down</source>
        <translation>Faire défiler le bilan vers le bas</translation>
    </message>
    <message>
        <source>Scroll the results sideways</source>
        <translation>Faire défiler le bilan latéralement</translation>
    </message>
    <message>
        <source>(damaged in the search cache; press Find again)</source>
        <translation>(endommagé dans le cache de recherche&#xa0;; cliquez de nouveau sur Chercher)</translation>
    </message>
    <message>
        <source>Line %1 is longer than %2 bytes</source>
        <translation>La ligne %1 dépasse %2 octets</translation>
    </message>
    <message numerus="yes">
        <source>and %1 more listings</source>
        <translation>
            <numerusform>et %1 liste de plus</numerusform>
            <numerusform>et %1 listes de plus</numerusform>
        </translation>
    </message>
    <message>
        <source>Listing file not found: %1</source>
        <translation>Fichier de liste introuvable&#xa0;: %1</translation>
    </message>
    <message>
        <source>The listing %1 could not be searched to its end.<byte value="xd"/>
Run-time error &apos;%2&apos;: %3<byte value="xd"/>
The hits found in it so far are kept.</source>
        <translation>La liste %1 n’a pas pu être parcourue jusqu’à sa fin.<byte value="xd"/>
Erreur d’exécution &apos;%2&apos;&#xa0;: %3<byte value="xd"/>
Les résultats qui y ont été trouvés jusque-là sont gardés.</translation>
    </message>
    <message>
        <source>The size or date of some hits could not be read. They are shown with the size and date of the hit before them.</source>
        <translation>La taille ou la date de certains résultats n’a pas pu être lue. Ils sont affichés avec la taille et la date du résultat précédent.</translation>
    </message>
    <message numerus="yes">
        <source>%1: %2 line(s), the first is line %3</source>
        <translation>
            <numerusform>%1&#xa0;: %2 ligne, la première est la ligne %3</numerusform>
            <numerusform>%1&#xa0;: %2 lignes, la première est la ligne %3</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and in %1 more listings</source>
        <translation>
            <numerusform>et dans %1 liste de plus</numerusform>
            <numerusform>et dans %1 listes de plus</numerusform>
        </translation>
    </message>
    <message>
        <source>These listings were written to while they were searched. Hits in them may come from the old or the new content; press Find again for the new one.</source>
        <translation>Ces listes ont été écrites pendant qu’elles étaient parcourues. Leurs résultats peuvent venir de l’ancien contenu ou du nouveau&#xa0;; pour le nouveau, cliquez de nouveau sur Chercher.</translation>
    </message>
    <message>
        <source>These listings are not plain text, so little or nothing is found in them. If one was saved as UTF-16 (&quot;Unicode&quot;) without a byte order mark, save it as UTF-8.</source>
        <translation>Ces listes ne sont pas du texte brut&#xa0;; on n’y trouve donc que peu ou rien. Si l’une a été enregistrée en UTF-16 («&#xa0;Unicode&#xa0;») sans indicateur d’ordre des octets, enregistrez-la en UTF-8.</translation>
    </message>
    <message>
        <source>A file of the search cache is damaged</source>
        <translation>Un fichier du cache de recherche est endommagé</translation>
    </message>
    <message>
        <source>%1 of %2 words</source>
        <translation>%1 mots sur %2</translation>
    </message>
    <message>
        <source>%1; missing: %2</source>
        <translation>%1&#xa0;; il manque&#xa0;: %2</translation>
    </message>
    <message>
        <source>Your lists were kept in %1, beside the program, where a new build or an update may remove them.</source>
        <translation>Vos listes étaient gardées dans %1, à côté du programme, où une nouvelle compilation ou une mise à jour peut les supprimer.</translation>
    </message>
    <message>
        <source>They have been copied to %1, and are used there from now on. The old files are no longer needed.</source>
        <translation>Elles ont été copiées dans %1 et y sont utilisées désormais. Les anciens fichiers ne sont plus nécessaires.</translation>
    </message>
    <message>
        <source>They could not be copied to %1, which holds another file of the name %2. Put together by hand what you want to keep, and choose its folder under File, Options.</source>
        <translation>Elles n’ont pas pu être copiées dans %1, qui contient un autre fichier du nom de %2. Réunissez vous-même ce que vous voulez garder, et choisissez son dossier sous Fichier, Options.</translation>
    </message>
    <message>
        <source>They could not be copied to %1: %2</source>
        <translation>Elles n’ont pas pu être copiées dans %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>An earlier run ended without saving these changes, the last of them on %1:</source>
        <translation>Une exécution précédente s’est terminée sans enregistrer ces changements, le dernier d’entre eux le %1&#xa0;:</translation>
    </message>
    <message>
        <source>Local folders in the search list</source>
        <translation>Dossiers locaux dans la liste de recherche</translation>
    </message>
    <message>
        <source>Offline list files</source>
        <translation>Fichiers de liste hors ligne</translation>
    </message>
    <message>
        <source>Do you want to have them back? No removes them.</source>
        <translation>Voulez-vous les retrouver&#xa0;? «&#xa0;Non&#xa0;» les supprime.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un nombre</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a date</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une date</translation>
    </message>
    <message>
        <source>%1 is in the list already.</source>
        <translation>%1 est déjà dans la liste.</translation>
    </message>
    <message>
        <source>The Path must be at lease 3 characters long. (ex: C:\)</source>
        <translation>Le chemin doit avoir au moins 3 caractères. (ex.&#xa0;: C:\)</translation>
    </message>
    <message>
        <source>Description must not be left blank or contain the characters /?\:|*</source>
        <translation>La description ne doit pas être vide ni contenir les caractères /?\:|*</translation>
    </message>
    <message>
        <source>The Path must not contain a double quote, since a list of sources cannot keep one. Please give the folder another name, or use a link to it.</source>
        <translation>Le chemin ne doit pas contenir de guillemet double, car une liste de sources ne peut pas en garder. Veuillez donner un autre nom au dossier, ou utiliser un lien vers lui.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file of the program; it needs another description.</source>
        <translation>«&#xa0;%1&#xa0;» est un fichier du programme&#xa0;; il faut une autre description.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there twice; both would share one listing.</source>
        <translation>«&#xa0;%1&#xa0;» est là deux fois&#xa0;; les deux auraient la même liste.</translation>
    </message>
    <message>
        <source>A list can hold %1 entries at most, and this one has %2.<byte value="xd"/>
<byte value="xd"/>
Nothing has been saved. Please delete entries and save again.</source>
        <translation>Une liste peut contenir au plus %1 entrées, et celle-ci en a %2.<byte value="xd"/>
<byte value="xd"/>
Rien n’a été enregistré. Veuillez supprimer des entrées et enregistrer de nouveau.</translation>
    </message>
    <message>
        <source>%1 holds more than %2 records</source>
        <translation>%1 contient plus de %2 enregistrements</translation>
    </message>
    <message>
        <source>The list %1 was not read completely when the program started.</source>
        <translation>La liste %1 n’a pas été lue entièrement au démarrage du programme.</translation>
    </message>
    <message>
        <source>The list %1 was not read, since its folder became the data folder only later.</source>
        <translation>La liste %1 n’a pas été lue, car son dossier n’est devenu le dossier de données que plus tard.</translation>
    </message>
    <message>
        <source>The list %1 was not there when the program started.</source>
        <translation>La liste %1 n’était pas là au démarrage du programme.</translation>
    </message>
    <message>
        <source>The list %1 has been changed by another program.</source>
        <translation>La liste %1 a été modifiée par un autre programme.</translation>
    </message>
    <message>
        <source>The list %1 looks damaged: it has the path &quot;%2&quot; where a description should be. A double quote in a description or a path does that.</source>
        <translation>La liste %1 semble endommagée&#xa0;: elle a le chemin «&#xa0;%2&#xa0;» là où devrait être une description. Un guillemet double dans une description ou un chemin en est la cause.</translation>
    </message>
    <message>
        <source>It is kept as %1, and the list as it is now is saved in its place.</source>
        <translation>Elle est gardée sous le nom %1, et la liste telle qu’elle est maintenant est enregistrée à sa place.</translation>
    </message>
    <message>
        <source>It was left as it is.</source>
        <translation>Elle a été laissée telle quelle.</translation>
    </message>
    <message>
        <source>The Local Data Folder path is invalid.<byte value="xd"/>
<byte value="xd"/>
Unable to save the online sources list.</source>
        <translation>Le chemin du dossier de données local n’est pas valide.<byte value="xd"/>
<byte value="xd"/>
Impossible d’enregistrer la liste des sources en ligne.</translation>
    </message>
    <message>
        <source>the server did not answer in time</source>
        <translation>le serveur n’a pas répondu à temps</translation>
    </message>
    <message>
        <source>the document is too large</source>
        <translation>le document est trop grand</translation>
    </message>
    <message>
        <source>the document ended too early</source>
        <translation>le document s’est terminé trop tôt</translation>
    </message>
    <message>
        <source>the server answered %1</source>
        <translation>le serveur a répondu %1</translation>
    </message>
    <message>
        <source>the server fell silent</source>
        <translation>le serveur ne dit plus rien</translation>
    </message>
    <message>
        <source>These files of the archive were left out, since they would have replaced your source lists, your settings, your listing history, or the program itself:</source>
        <translation>Ces fichiers de l’archive ont été omis, car ils auraient remplacé vos listes de sources, vos réglages, votre historique des listes ou le programme lui-même&#xa0;:</translation>
    </message>
    <message numerus="yes">
        <source>and %1 more</source>
        <translation>
            <numerusform>et %1 de plus</numerusform>
            <numerusform>et %1 de plus</numerusform>
        </translation>
    </message>
    <message>
        <source>Archive Error: %1</source>
        <translation>Erreur d’archive&#xa0;: %1</translation>
    </message>
    <message>
        <source>The earlier %1 could not be kept in the listing history: %2</source>
        <translation>L’ancien %1 n’a pas pu être gardé dans l’historique des listes&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1: Could not get an update.</source>
        <translation>%1&#xa0;: impossible d’obtenir une mise à jour.</translation>
    </message>
    <message>
        <source>The update was downloaded, but %1 cannot be found now. Nothing was unpacked.</source>
        <translation>La mise à jour a été téléchargée, mais %1 est maintenant introuvable. Rien n’a été décompressé.</translation>
    </message>
    <message>
        <source>Your data file is up to date.</source>
        <translation>Votre fichier de données est à jour.</translation>
    </message>
    <message>
        <source>An updated data file is avaliable at %1 do you want to download the update?</source>
        <translation>Un fichier de données plus récent est disponible à l’adresse %1. Voulez-vous télécharger la mise à jour&#xa0;?</translation>
    </message>
    <message>
        <source>Starting download of update.</source>
        <translation>Début du téléchargement de la mise à jour.</translation>
    </message>
    <message>
        <source>Retrieved compressed data update!</source>
        <translation>Mise à jour compressée des données obtenue&#xa0;!</translation>
    </message>
    <message>
        <source>Decompressing...</source>
        <translation>Décompression...</translation>
    </message>
    <message>
        <source>Decompressing Compressed Data File.</source>
        <translation>Décompression du fichier de données.</translation>
    </message>
    <message>
        <source>%1 could not be unpacked</source>
        <translation>%1 n’a pas pu être décompressé</translation>
    </message>
    <message>
        <source>A search is running.</source>
        <translation>Une recherche est en cours.</translation>
    </message>
    <message>
        <source>The local folders are being rescanned.</source>
        <translation>Les dossiers locaux sont en cours de relecture.</translation>
    </message>
    <message>
        <source>A web update is running.</source>
        <translation>Une mise à jour web est en cours.</translation>
    </message>
    <message>
        <source>The main data file is being unpacked.</source>
        <translation>Le fichier de données principal est en cours de décompression.</translation>
    </message>
    <message>
        <source>Your lists are being packed for sharing.</source>
        <translation>Vos listes sont en cours de compression pour le partage.</translation>
    </message>
    <message>
        <source>Lists are being received from a peer.</source>
        <translation>Des listes sont en cours de réception depuis un pair.</translation>
    </message>
    <message>
        <source>Lists that came from a peer are being unpacked.</source>
        <translation>Des listes venues d’un pair sont en cours de décompression.</translation>
    </message>
    <message>
        <source>Hits are being exported.</source>
        <translation>Des résultats sont en cours d’exportation.</translation>
    </message>
    <message>
        <source>A search</source>
        <translation>Une recherche</translation>
    </message>
    <message>
        <source>The rescan</source>
        <translation>La relecture</translation>
    </message>
    <message>
        <source>The web update</source>
        <translation>La mise à jour web</translation>
    </message>
    <message>
        <source>Unpacking the main data file</source>
        <translation>La décompression du fichier de données principal</translation>
    </message>
    <message>
        <source>Packing your lists</source>
        <translation>La compression de vos listes</translation>
    </message>
    <message>
        <source>Getting lists</source>
        <translation>L’obtention de listes</translation>
    </message>
    <message>
        <source>Unpacking received lists</source>
        <translation>La décompression des listes reçues</translation>
    </message>
    <message>
        <source>The export</source>
        <translation>L’exportation</translation>
    </message>
    <message>
        <source>Lists are already being received.</source>
        <translation>Des listes sont déjà en cours de réception.</translation>
    </message>
    <message>
        <source>%1 can be started when that has ended.</source>
        <translation>%1 pourra être lancée quand ce sera terminé.</translation>
    </message>
    <message>
        <source>Stopping...</source>
        <translation>Arrêt en cours...</translation>
    </message>
    <message>
        <source>row %1, column %2 of a source table</source>
        <translation>ligne %1, colonne %2 d’une table de sources</translation>
    </message>
    <message>
        <source>The language of texts: German, English, French or Spanish.</source>
        <translation>La langue des textes&#xa0;: allemand, anglais, espagnol ou français.</translation>
    </message>
    <message>
        <source>very long outlines</source>
        <translation>contours très longs</translation>
    </message>
    <message>
        <source>There are more than %1 files</source>
        <translation>Il y a plus de %1 fichiers</translation>
    </message>
    <message>
        <source>comparing names and sizes</source>
        <translation>comparaison des noms et des tailles</translation>
    </message>
    <message>
        <source>Files on one volume only: %1, of %2 altogether</source>
        <translation>Fichiers sur un seul volume&#xa0;: %1, de %2 en tout</translation>
    </message>
    <message>
        <source>Files with copies: %1. Copies beyond the first: %2, of %3 altogether</source>
        <translation>Fichiers avec des copies&#xa0;: %1. Copies en plus de la première&#xa0;: %2, de %3 en tout</translation>
    </message>
    <message>
        <source>Left out, since their exact size is not known: %1</source>
        <translation>Laissés de côté, car leur taille exacte n’est pas connue&#xa0;: %1</translation>
    </message>
    <message>
        <source>Files that are on one volume only, instead of copies</source>
        <translation>Les fichiers d’un seul volume au lieu des copies</translation>
    </message>
    <message>
        <source>Write only how much it is, for each volume</source>
        <translation>N’écrire que la quantité, pour chaque volume</translation>
    </message>
    <message>
        <source>The same for each folder</source>
        <translation>De même pour chaque dossier</translation>
    </message>
    <message>
        <source>Files must match WORDS by more than this percentage; 50</source>
        <translation>Les fichiers doivent dépasser ce pourcentage&#xa0;; 50</translation>
    </message>
    <message>
        <source>Files of no bytes too</source>
        <translation>Aussi les fichiers vides</translation>
    </message>
    <message>
        <source>text (default), tsv, csv or json</source>
        <translation>text (par défaut), tsv, csv ou json</translation>
    </message>
    <message>
        <source>Start tsv and csv with the titles of the columns</source>
        <translation>Commencer tsv et csv par les titres des colonnes</translation>
    </message>
    <message>
        <source>Write no more than N of them</source>
        <translation>N’en écrire pas plus de N</translation>
    </message>
    <message>
        <source>What takes up most space</source>
        <translation>Ce qui prend le plus de place</translation>
    </message>
    <message>
        <source>How much each disk has that no other one has</source>
        <translation>Ce que chaque disque est seul à avoir</translation>
    </message>
    <message>
        <source>Photos without a backup</source>
        <translation>Les photos sans sauvegarde</translation>
    </message>
    <message>
        <source>Of these two listings</source>
        <translation>De ces deux listes</translation>
    </message>
    <message>
        <source>A volume is what a listing calls so; two listings never share one. With --single a file is shown if no other volume has it, even where its own volume has it twice. Which files are the same is always decided among all listings: with WORDS, groups are shown of which a search for these words finds one file. Without a LISTING, the user&apos;s own sources are looked through.</source>
        <translation>Un volume est ce qu’une liste nomme ainsi&#xa0;; deux listes n’en partagent jamais un. Avec --single, un fichier est montré si aucun autre volume ne l’a, même si le sien l’a deux fois. Quels fichiers sont les mêmes se décide toujours parmi toutes les listes&#xa0;: avec WORDS sont montrés les groupes dont une recherche de ces mots trouve un fichier. Sans LISTING, les sources propres de l’utilisateur sont parcourues.</translation>
    </message>
    <message>
        <source>Left out are files without a size of their own in the listing, which are counted at the end, and empty ones unless --empty is given. Listings hold the first 65 characters of a name; longer names that differ only behind them count as the same. A size that a listing has rounded cannot be told from one that is exact.</source>
        <translation>Sont laissés de côté les fichiers sans taille propre dans la liste, qui sont comptés à la fin, et les fichiers vides, sauf avec --empty. Les listes contiennent les 65 premiers caractères d’un nom&#xa0;; les noms plus longs qui ne diffèrent qu’ensuite comptent comme les mêmes. Une taille qu’une liste a arrondie ne se distingue pas d’une taille exacte.</translation>
    </message>
    <message>
        <source>Tsv and csv have a row for each place, json an object for each group; a group&apos;s name is that of its first file or folder. The last line on standard error has the sum. --limit counts groups, files or sums, whichever are written.</source>
        <translation>Tsv et csv ont une ligne pour chaque endroit, json un objet pour chaque groupe&#xa0;; le nom d’un groupe est celui de son premier fichier ou dossier. La dernière ligne sur la sortie d’erreur contient la somme. --limit compte les groupes, les fichiers ou les sommes, selon ce qui est écrit.</translation>
    </message>
    <message numerus="yes">
        <source>%1 copies of %2: %3</source>
        <translation>
            <numerusform>%1 copie de %2&#xa0;: %3</numerusform>
            <numerusform>%1 copies de %2&#xa0;: %3</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 equal folders of %2 with %3 files: %4</source>
        <translation>
            <numerusform>%1 dossier égal de %2 avec %3 fichiers&#xa0;: %4</numerusform>
            <numerusform>%1 dossiers égaux de %2 avec %3 fichiers&#xa0;: %4</numerusform>
        </translation>
    </message>
    <message>
        <source>there is no format &quot;%1&quot;; the formats are text, tsv, csv and json</source>
        <translation>il n’y a pas de format «&#xa0;%1&#xa0;»&#xa0;; les formats sont text, tsv, csv et json</translation>
    </message>
    <message>
        <source>there are sums for volumes or for folders, not for both at once</source>
        <translation>il y a des sommes par volume ou par dossier, pas par les deux à la fois</translation>
    </message>
    <message>
        <source>%1 searched</source>
        <translation>%1 parcourues</translation>
    </message>
    <message>
        <source>Find copies of files, and what is on one volume only</source>
        <translation>Trouver les copies, et ce qui n’est que sur un volume</translation>
    </message>
    <message>
        <source>%1 was changed while it was read. Please try again</source>
        <translation>%1 a été modifié pendant sa lecture. Veuillez réessayer</translation>
    </message>
    <message>
        <source>the pattern may hold \n or \0 only at its end, and no other escapes than \t</source>
        <translation>le motif ne peut contenir \n ou \0 qu’à la fin, et aucun autre échappement que \t</translation>
    </message>
    <message>
        <source>the pattern ends within a directive</source>
        <translation>le motif se termine au milieu d’une directive</translation>
    </message>
    <message>
        <source>the pattern holds no path: %p, %P, or %h and %f</source>
        <translation>le motif ne contient aucun chemin : %p, %P, ou %h et %f</translation>
    </message>
    <message>
        <source>&quot;%1&quot; says nothing of a column; an example is path=1,size=3,date=Modified</source>
        <translation>« %1 » ne dit rien d’une colonne ; un exemple est path=1,size=3,date=Modified</translation>
    </message>
    <message>
        <source>there is no format &quot;%1&quot;; the formats are %2</source>
        <translation>il n’y a pas de format « %1 » ; les formats sont %2</translation>
    </message>
    <message>
        <source>the value of --dates is dmy or mdy, not &quot;%1&quot;</source>
        <translation>la valeur de --dates est dmy ou mdy, pas « %1 »</translation>
    </message>
    <message>
        <source>there is no encoding &quot;%1&quot;; the encodings are %2</source>
        <translation>il n’y a pas de codage « %1 » ; les codages sont %2</translation>
    </message>
    <message>
        <source>a list from standard input needs --label, the name of its volume</source>
        <translation>une liste de l’entrée standard a besoin de --label, le nom de son volume</translation>
    </message>
    <message>
        <source>%1 is there already; nothing was imported of %2</source>
        <translation>%1 existe déjà ; rien n’a été importé de %2</translation>
    </message>
    <message>
        <source>%1: %2 lines</source>
        <translation>%1 : %2 lignes</translation>
    </message>
    <message>
        <source>%1 is no list of a known format; %2 says which of these it has: %3</source>
        <translation>%1 n’est pas une liste d’un format connu ; %2 dit lequel de ceux-ci elle a : %3</translation>
    </message>
    <message>
        <source>%1 names no file and no folder; no listing was made</source>
        <translation>%1 ne nomme ni fichier ni dossier ; aucune liste n’a été créée</translation>
    </message>
    <message>
        <source>%1: read as %2; %3 has %4 files, %5 folders</source>
        <translation>%1 : lu comme %2 ; %3 a %4 fichiers, %5 dossiers</translation>
    </message>
    <message>
        <source>files without an exact size: %1</source>
        <translation>fichiers sans taille exacte : %1</translation>
    </message>
    <message>
        <source>files without a date: %1</source>
        <translation>fichiers sans date : %1</translation>
    </message>
    <message>
        <source>dates in which day and month may have changed places, left out (see %1): %2</source>
        <translation>dates où jour et mois peuvent être inversés, omises (voir %1) : %2</translation>
    </message>
    <message>
        <source>names that came again, of which the last one counts: %1</source>
        <translation>noms revenus, dont le dernier compte : %1</translation>
    </message>
    <message>
        <source>names that a listing cannot hold, left out: %1</source>
        <translation>noms qu’une liste ne peut contenir, omis : %1</translation>
    </message>
    <message>
        <source>lines whose bytes are no UTF-8 (see %1): %2</source>
        <translation>lignes dont les octets ne sont pas de l’UTF-8 (voir %1) : %2</translation>
    </message>
    <message>
        <source>lines that were not understood: %1</source>
        <translation>lignes non comprises : %1</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>ligne %1 : %2</translation>
    </message>
    <message>
        <source>import needs --output, the folder for the listings</source>
        <translation>import a besoin de --output, le dossier des nouvelles listes</translation>
    </message>
    <message>
        <source>--label is for one list at a time</source>
        <translation>--label est pour une seule liste à la fois</translation>
    </message>
    <message>
        <source>Make listings of lists that other programs wrote</source>
        <translation>Importer les listes d’autres programmes</translation>
    </message>
    <message>
        <source>The folder for the listings</source>
        <translation>Le dossier des nouvelles listes</translation>
    </message>
    <message>
        <source>The lists&apos; format; default: as recognised</source>
        <translation>Le format des listes ; sinon celui reconnu</translation>
    </message>
    <message>
        <source>The volume&apos;s name; default: the file&apos;s name</source>
        <translation>Le nom du volume ; sinon celui du fichier</translation>
    </message>
    <message>
        <source>Where paths start that do not start with a slash</source>
        <translation>Où commencent les chemins sans barre initiale</translation>
    </message>
    <message>
        <source>The pattern of find -printf</source>
        <translation>Le motif de find -printf</translation>
    </message>
    <message>
        <source>The columns of a table: path=1,size=3,date=Changed</source>
        <translation>Colonnes d’un tableau : path=1,size=3,date=Changed</translation>
    </message>
    <message>
        <source>The sizes of du are bytes (du -ab)</source>
        <translation>Les tailles de du sont des octets (du -ab)</translation>
    </message>
    <message>
        <source>Dates like 3/4/04: dmy (3 April) or mdy (4 March)</source>
        <translation>Dates comme 3/4/04 : dmy (3 avril) ou mdy (4 mars)</translation>
    </message>
    <message>
        <source>When the list was made, for dates without a year</source>
        <translation>Quand la liste fut faite, pour dates sans année</translation>
    </message>
    <message>
        <source>Replace listings that are there</source>
        <translation>Remplacer les listes existantes</translation>
    </message>
    <message>
        <source>Report only what could not be read</source>
        <translation>Ne signaler que ce qui n’a pu être lu</translation>
    </message>
    <message>
        <source>Import what ls -lR wrote of a CD</source>
        <translation>Importer ce que ls -lR a écrit d’un CD</translation>
    </message>
    <message>
        <source>List what is in an archive</source>
        <translation>Lister le contenu d’une archive</translation>
    </message>
    <message>
        <source>A list in a form of your own</source>
        <translation>Une liste dans un format à soi</translation>
    </message>
    <message>
        <source>Writes a listing for each FILE into the folder of --output, under the file&apos;s name and with the ending .txt. The format is recognised from the first lines and reported on standard error. Lines that were not understood are counted there, and the first of them shown; the exit status is 2 then. A FILE may be a pipe; - is standard input.</source>
        <translation>Écrit pour chaque FILE une liste de ce programme dans le dossier de --output, sous le nom du fichier et avec la terminaison .txt. Le format est reconnu aux premières lignes et indiqué sur stderr. Les lignes non comprises y sont comptées et les premières montrées ; le code de retour est alors 2. Un FILE peut être un tube ; - est l’entrée standard.</translation>
    </message>
    <message>
        <source>What a list does not tell exactly is left out: rounded sizes, sizes in blocks, dates without a year unless --made is given, and dates that may be of two days unless --dates is given or other dates of the list decide. Such files have the size -1 or the zero date.</source>
        <translation>Ce qu’une liste ne dit pas exactement est omis : tailles arrondies, tailles en blocs, dates sans année à moins que --made soit donné, et dates pouvant désigner deux jours à moins que --dates ou d’autres dates de la liste ne décident. Ces fichiers ont la taille -1 ou la date zéro.</translation>
    </message>
    <message>
        <source>import needs the lists to import</source>
        <translation>import a besoin des listes à importer</translation>
    </message>
    <message>
        <source>A listing was changed while it was read. Please try again</source>
        <translation>Une liste a été modifiée pendant sa lecture. Veuillez réessayer</translation>
    </message>
    <message>
        <source>one of the two is no listing, since it is not plain text</source>
        <translation>l&apos;une des deux n&apos;est pas une liste, car ce n&apos;est pas du texte brut</translation>
    </message>
    <message>
        <source>comparing</source>
        <translation>comparaison</translation>
    </message>
    <message>
        <source>Compared below %1 and %2, since they have no folder in common</source>
        <translation>Comparaison au-dessous de %1 et de %2, car elles n&apos;ont aucun dossier en commun</translation>
    </message>
    <message>
        <source>Added: %1. Removed: %2. Changed: %3. Moved: %4. The same: %5</source>
        <translation>Ajoutés : %1. Supprimés : %2. Modifiés : %3. Déplacés : %4. Identiques : %5</translation>
    </message>
    <message>
        <source>%1 (before: %2)</source>
        <translation>%1 (avant : %2)</translation>
    </message>
    <message>
        <source>Say what differs between listings, versions and folders</source>
        <translation>Montrer ce qui diffère entre listes, versions et dossiers</translation>
    </message>
    <message>
        <source>EARLIER is this version in the listing history</source>
        <translation>EARLIER est cette version dans l&apos;historique des listes</translation>
    </message>
    <message>
        <source>EARLIER is the version of that day, such as 2004-03-31</source>
        <translation>EARLIER est la version de ce jour, par exemple 2004-03-31</translation>
    </message>
    <message>
        <source>Write only how much it is, for each folder</source>
        <translation>N&apos;écrire que les totaux, pour chaque dossier</translation>
    </message>
    <message>
        <source>Write neither sums nor progress to standard error</source>
        <translation>N&apos;écrire ni totaux ni progression sur la sortie d&apos;erreur</translation>
    </message>
    <message>
        <source>What the last rescan changed</source>
        <translation>Ce que la dernière actualisation a changé</translation>
    </message>
    <message>
        <source>What has changed in the folder since then</source>
        <translation>Ce qui a changé depuis dans le dossier</translation>
    </message>
    <message>
        <source>What has changed since March</source>
        <translation>Ce qui a changé depuis mars</translation>
    </message>
    <message>
        <source>Whether a copy has everything</source>
        <translation>Si une copie contient tout</translation>
    </message>
    <message>
        <source>EARLIER and LATER are listings, or folders, which are listed as they are now. Without LATER the listing EARLIER is compared with its newest complete version in the listing history, or with the one that --number or --on names. A listing in the data folder may be called by its description.</source>
        <translation>EARLIER et LATER sont des listes, ou des dossiers, qui sont listés tels qu&apos;ils sont maintenant. Sans LATER, la liste EARLIER est comparée à sa version complète la plus récente dans l&apos;historique, ou à celle que désigne --number ou --on. Une liste du dossier de données peut être désignée par sa description.</translation>
    </message>
    <message>
        <source>Lines start with + for a file that was added, - for one that was removed, * for one that has another size or date, and &gt; for one that was moved, with the place where it was in the line below. A file is taken to be moved if one with the same name and size is gone elsewhere; if there are several, one with the same date is preferred. The name of a volume counts only where a listing has more than one, and if the two have no folder in common, they are compared below the folders that have all of their files.</source>
        <translation>Les lignes commencent par + pour un fichier ajouté, - pour un fichier supprimé, * pour un fichier dont la taille ou la date a changé, et &gt; pour un fichier déplacé, la ligne suivante indiquant où il était. Un fichier est considéré comme déplacé si un autre de même nom et de même taille a disparu ailleurs ; s&apos;il y en a plusieurs, celui qui a la même date est préféré. Le nom d&apos;un volume ne compte que si une liste en a plusieurs, et si les deux n&apos;ont aucun dossier en commun, elles sont comparées au-dessous des dossiers qui contiennent tous leurs fichiers.</translation>
    </message>
    <message>
        <source>The exit status is 0 if there is no difference, 1 if there is one, and 2 if something went wrong. Listings hold the first 65 characters of a name, and dates to the second.</source>
        <translation>Le code de retour est 0 s&apos;il n&apos;y a pas de différence, 1 s&apos;il y en a une et 2 en cas de problème. Les listes contiennent les 65 premiers caractères d&apos;un nom, et les dates à la seconde près.</translation>
    </message>
    <message>
        <source>there is neither a listing nor a folder %1</source>
        <translation>il n&apos;y a ni liste ni dossier %1</translation>
    </message>
    <message>
        <source>no version of %1 that is kept is as old as %2</source>
        <translation>aucune version conservée de %1 n&apos;est aussi ancienne que %2</translation>
    </message>
    <message>
        <source>compare needs a listing or a folder</source>
        <translation>compare a besoin d&apos;une liste ou d&apos;un dossier</translation>
    </message>
    <message>
        <source>the value of --on is a day such as 2004-03-31, not &quot;%1&quot;</source>
        <translation>la valeur de --on est un jour comme 2004-03-31, pas «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>compare does not know what to do with &quot;%1&quot;</source>
        <translation>compare ne sait que faire de «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>--number and --on both say which version is meant</source>
        <translation>--number et --on disent tous deux quelle version est voulue</translation>
    </message>
    <message>
        <source>looking for copies</source>
        <translation>recherche de copies</translation>
    </message>
    <message>
        <source>&amp;Copies...</source>
        <translation>&amp;Copies...</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Copies</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Wasted</source>
        <translation>Gaspillé</translation>
    </message>
    <message numerus="yes">
        <source>%1 (equal folders, %2 files)</source>
        <translation>
            <numerusform>%1 (dossiers identiques, %2 fichier)</numerusform>
            <numerusform>%1 (dossiers identiques, %2 fichiers)</numerusform>
        </translation>
    </message>
    <message>
        <source>What wastes space</source>
        <translation>Ce qui gaspille de la place</translation>
    </message>
    <message>
        <source>What wastes space, by volume</source>
        <translation>Ce qui gaspille de la place, par volume</translation>
    </message>
    <message>
        <source>What wastes space, by folder</source>
        <translation>Ce qui gaspille de la place, par dossier</translation>
    </message>
    <message>
        <source>On one volume only</source>
        <translation>Sur un seul volume</translation>
    </message>
    <message>
        <source>On one volume only, by volume</source>
        <translation>Sur un seul volume, par volume</translation>
    </message>
    <message>
        <source>On one volume only, by folder</source>
        <translation>Sur un seul volume, par dossier</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Chercher</translation>
    </message>
    <message>
        <source>&amp;Empty files, too</source>
        <translation>Fichiers &amp;vides aussi</translation>
    </message>
    <message>
        <source>Files that have the same name and the same size to the byte, in all listings together. Nothing is deleted or changed.</source>
        <translation>Fichiers de même nom et de même taille à l’octet près, dans toutes les listes ensemble. Rien n’est supprimé ni modifié.</translation>
    </message>
    <message>
        <source>Words that limit what is shown</source>
        <translation>Mots qui limitent ce qui est affiché</translation>
    </message>
    <message>
        <source>What is shown</source>
        <translation>Ce qui est affiché</translation>
    </message>
    <message>
        <source>What can be shown</source>
        <translation>Ce qui peut être affiché</translation>
    </message>
    <message>
        <source>Only files with these words; empty for all</source>
        <translation>Seulement les fichiers avec ces mots&#xa0;; vide pour tous</translation>
    </message>
    <message>
        <source>Only what a search for these words finds is shown. What has a copy is still looked up everywhere.</source>
        <translation>N’est affiché que ce que trouve une recherche de ces mots. Les copies sont tout de même cherchées partout.</translation>
    </message>
    <message>
        <source>&amp;Words:</source>
        <translation>&amp;Mots&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Show:</source>
        <translation>&amp;Afficher&#xa0;:</translation>
    </message>
    <message>
        <source>Stopped. Only all listings together tell what has copies.</source>
        <translation>Arrêté. Seules toutes les listes ensemble disent ce qui a des copies.</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>A&amp;rrêter</translation>
    </message>
    <message>
        <source>Comparing names and sizes</source>
        <translation>Comparaison des noms et des tailles</translation>
    </message>
    <message>
        <source>Only the %1 largest of %2 rows are shown.</source>
        <translation>Seules les %1 plus grandes lignes sur %2 sont affichées.</translation>
    </message>
    <message>
        <source>and one more message</source>
        <translation>et un message de plus</translation>
    </message>
    <message numerus="yes">
        <source>and %1 more messages</source>
        <translation>
            <numerusform>et %1 message de plus</numerusform>
            <numerusform>et %1 messages de plus</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is not there now, or its listing does not say where.</source>
        <translation>%1 n’est pas là en ce moment, ou sa liste ne dit pas où.</translation>
    </message>
    <message>
        <source>importing lists</source>
        <translation>l’importation de listes</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importer...</translation>
    </message>
    <message>
        <source>names that hold a mark of listings, so that a search misreads their lines: %1</source>
        <translation>noms qui contiennent une marque des listes, dont une recherche lit mal les lignes : %1</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importer</translation>
    </message>
    <message>
        <source>Made by</source>
        <translation>Programme</translation>
    </message>
    <message>
        <source>Dates</source>
        <translation>Dates</translation>
    </message>
    <message>
        <source>Encoding</source>
        <translation>Encodage</translation>
    </message>
    <message>
        <source>Made on</source>
        <translation>Fait le</translation>
    </message>
    <message>
        <source>&amp;Add...</source>
        <translation>&amp;Ajouter...</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>Re&amp;tirer</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Parcourir...</translation>
    </message>
    <message>
        <source>du told b&amp;ytes</source>
        <translation>du en oct&amp;ets</translation>
    </message>
    <message>
        <source>Re&amp;place listings of the same name</source>
        <translation>Re&amp;mplacer les listes du même nom</translation>
    </message>
    <message>
        <source>&amp;Search in the listings from now on</source>
        <translation>C&amp;hercher désormais dans les listes</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>As recognised</source>
        <translation>Selon la liste</translation>
    </message>
    <message>
        <source>Day first</source>
        <translation>Jour d’abord</translation>
    </message>
    <message>
        <source>Month first</source>
        <translation>Mois d’abord</translation>
    </message>
    <message>
        <source>Lists that other programs wrote, of a CD or of an archive, become listings. The lists themselves stay as they are.</source>
        <translation>Des listes écrites par d’autres programmes, d’un CD ou d’une archive, deviennent des listes du programme. Elles-mêmes restent telles quelles.</translation>
    </message>
    <message>
        <source>Lists to import</source>
        <translation>Listes à importer</translation>
    </message>
    <message>
        <source>The program that made the lists</source>
        <translation>Le programme qui a fait les listes</translation>
    </message>
    <message>
        <source>Pattern of find -printf, or columns of a table</source>
        <translation>Motif de find -printf, ou colonnes d’un tableau</translation>
    </message>
    <message>
        <source>Encoding of the lists</source>
        <translation>Encodage des listes</translation>
    </message>
    <message>
        <source>Order of day and month</source>
        <translation>Ordre du jour et du mois</translation>
    </message>
    <message>
        <source>The day on which the lists were made</source>
        <translation>Le jour où les listes ont été faites</translation>
    </message>
    <message>
        <source>Where paths start that do not start with /</source>
        <translation>Où commencent les chemins qui ne commencent pas par /</translation>
    </message>
    <message>
        <source>Name of the volume and of its listing</source>
        <translation>Nom du volume et de sa liste</translation>
    </message>
    <message>
        <source>Folder for the listings</source>
        <translation>Dossier des listes</translation>
    </message>
    <message>
        <source>Browse for a folder</source>
        <translation>Parcourir les dossiers</translation>
    </message>
    <message>
        <source>What has come of it</source>
        <translation>Ce qui en est résulté</translation>
    </message>
    <message>
        <source>Programs that make lists</source>
        <translation>Programmes qui font des listes</translation>
    </message>
    <message>
        <source>Encodings</source>
        <translation>Encodages</translation>
    </message>
    <message>
        <source>Orders of day and month</source>
        <translation>Ordres du jour et du mois</translation>
    </message>
    <message>
        <source>The pattern that find was given, such as %s %T@ %p\n, or which column of a table holds what, such as path=1,size=3</source>
        <translation>Le motif donné à find, par exemple %s %T@ %p\n, ou quelle colonne d’un tableau contient quoi, par exemple path=1,size=3</translation>
    </message>
    <message>
        <source>A day such as 2004-01-15. ls leaves the year of recent dates out.</source>
        <translation>Un jour comme 2004-01-15. ls omet l’année des dates récentes.</translation>
    </message>
    <message>
        <source>For paths that do not start with /, such as /media/cd</source>
        <translation>Pour les chemins qui ne commencent pas par /, par exemple /media/cd</translation>
    </message>
    <message>
        <source>Empty for the name of the list. For one list at a time.</source>
        <translation>Vide pour le nom de la liste. Pour une seule liste à la fois.</translation>
    </message>
    <message>
        <source>For the lists of du -ab. Without it the sizes of du are blocks, and left out.</source>
        <translation>Pour les listes de du -ab. Sinon, les tailles de du sont des blocs, et sont omises.</translation>
    </message>
    <message>
        <source>&amp;Made by:</source>
        <translation>Pro&amp;gramme :</translation>
    </message>
    <message>
        <source>Patter&amp;n:</source>
        <translation>M&amp;otif :</translation>
    </message>
    <message>
        <source>&amp;Encoding:</source>
        <translation>E&amp;ncodage :</translation>
    </message>
    <message>
        <source>&amp;Dates:</source>
        <translation>&amp;Dates :</translation>
    </message>
    <message>
        <source>Made &amp;on:</source>
        <translation>Fait &amp;le :</translation>
    </message>
    <message>
        <source>Pat&amp;hs in:</source>
        <translation>&amp;Chemins dans :</translation>
    </message>
    <message>
        <source>&amp;Volume:</source>
        <translation>&amp;Volume :</translation>
    </message>
    <message>
        <source>&amp;Listings to:</source>
        <translation>Li&amp;stes vers :</translation>
    </message>
    <message>
        <source>Stopped. The list that was being read has no listing.</source>
        <translation>Arrêté. La liste en cours de lecture n’a pas été importée.</translation>
    </message>
    <message>
        <source>the value of %1 is a day such as 2004-01-15, not &quot;%2&quot;</source>
        <translation>la valeur de %1 est un jour comme 2004-01-15, pas « %2 »</translation>
    </message>
    <message>
        <source>As the list tells</source>
        <translation>Selon la liste</translation>
    </message>
    <message>
        <source>%1 is a file of the program; nothing was imported of %2</source>
        <translation>%1 est un fichier du programme ; rien n’a été importé de %2</translation>
    </message>
    <message>
        <source>Whether 03/04/2004 is in March or in April. Other dates of the list may tell.</source>
        <translation>Si 03/04/2004 est en mars ou en avril. D’autres dates de la liste le disent peut-être.</translation>
    </message>
    <message>
        <source>&amp;Look into files at hand</source>
        <translation>&amp;Lire les fichiers présents</translation>
    </message>
    <message>
        <source>Reads the files in own folders that are there now, and takes those apart that hold different things. That takes as long as reading them all.</source>
        <translation>Lit les fichiers des dossiers personnels qui sont là maintenant et sépare ceux dont le contenu diffère. Cela dure le temps de tous les lire.</translation>
    </message>
    <message>
        <source>Looking into files: %1 of %2</source>
        <translation>Lecture des fichiers&#xa0;: %1 sur %2</translation>
    </message>
    <message>
        <source>Looked into: %1, of %2 altogether. Files that hold something else in spite of the same name and size: %3. Not at hand, so judged by name and size: %4</source>
        <translation>Lus&#xa0;: %1, %2 en tout. Fichiers au contenu différent malgré le même nom et la même taille&#xa0;: %3. Absents, donc jugés selon le nom et la taille&#xa0;: %4</translation>
    </message>
    <message>
        <source>looking into files: %1 of %2</source>
        <translation>lecture des fichiers&#xa0;: %1 sur %2</translation>
    </message>
    <message>
        <source>Look into the files that are at hand</source>
        <translation>Lire les fichiers qui sont là</translation>
    </message>
    <message>
        <source>Files are the same that have the same name, whatever its case, and the same size to the byte. With --content, those in own folders that are there now are read, too, and are not the same where they hold something else; a file that is not at hand stays with the first of its group. The groups that waste most space come first, each with a line for every place. Folders that are equal as a whole, with all that is in them, are one group, and their files are not listed again. Their own names may differ.</source>
        <translation>Sont les mêmes les fichiers qui ont le même nom, majuscules ou non, et la même taille à l’octet près. Avec --content, ceux des dossiers personnels qui sont là maintenant sont lus aussi, et ne sont pas les mêmes si leur contenu diffère&#xa0;; un fichier absent reste avec le premier de son groupe. Les groupes qui gaspillent le plus de place viennent en premier, chacun avec une ligne par endroit. Les dossiers égaux en entier, avec tout leur contenu, forment un groupe, et leurs fichiers ne sont pas énumérés de nouveau. Leurs propres noms peuvent différer.</translation>
    </message>
    <message>
        <source>Co&amp;mpare...</source>
        <translation>Co&amp;mparer...</translation>
    </message>
    <message>
        <source>One of the two is no listing, since it is not plain text.</source>
        <translation>L’une des deux n’est pas une liste, car ce n’est pas du texte brut.</translation>
    </message>
    <message>
        <source>Left out, since they could not be read: %1</source>
        <translation>Laissés de côté, car illisibles&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 added</source>
        <translation>%1 ajouté(s)</translation>
    </message>
    <message>
        <source>%1 removed</source>
        <translation>%1 supprimé(s)</translation>
    </message>
    <message>
        <source>%1 changed</source>
        <translation>%1 changé(s)</translation>
    </message>
    <message>
        <source>%1 moved</source>
        <translation>%1 déplacé(s)</translation>
    </message>
    <message>
        <source>added</source>
        <translation>ajouté</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>supprimé</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>changé</translation>
    </message>
    <message>
        <source>moved</source>
        <translation>déplacé</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Changement</translation>
    </message>
    <message>
        <source>Moved from</source>
        <translation>Déplacé de</translation>
    </message>
    <message>
        <source>Size earlier</source>
        <translation>Taille avant</translation>
    </message>
    <message>
        <source>Date earlier</source>
        <translation>Date avant</translation>
    </message>
    <message>
        <source>Size later</source>
        <translation>Taille après</translation>
    </message>
    <message>
        <source>Date later</source>
        <translation>Date après</translation>
    </message>
    <message>
        <source>All changes</source>
        <translation>Tous les changements</translation>
    </message>
    <message>
        <source>What was added</source>
        <translation>Ce qui a été ajouté</translation>
    </message>
    <message>
        <source>What was removed</source>
        <translation>Ce qui a été supprimé</translation>
    </message>
    <message>
        <source>What has changed</source>
        <translation>Ce qui a changé</translation>
    </message>
    <message>
        <source>What was moved</source>
        <translation>Ce qui a été déplacé</translation>
    </message>
    <message>
        <source>&amp;Compare</source>
        <translation>&amp;Comparer</translation>
    </message>
    <message>
        <source>%1 (incomplete)</source>
        <translation>%1 (incomplète)</translation>
    </message>
    <message>
        <source>Cl&amp;ose</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Comparer</translation>
    </message>
    <message>
        <source>What came, went, changed and was moved from the earlier to the later one. Nothing is deleted or changed.</source>
        <translation>Ce qui a été ajouté, supprimé, changé et déplacé de l’état antérieur à l’état ultérieur. Rien n’est effacé ni changé.</translation>
    </message>
    <message>
        <source>What is compared: the earlier side</source>
        <translation>Ce qui est comparé&#xa0;: le côté antérieur</translation>
    </message>
    <message>
        <source>Which state of the earlier side</source>
        <translation>Quel état du côté antérieur</translation>
    </message>
    <message>
        <source>What is compared: the later side</source>
        <translation>Ce qui est comparé&#xa0;: le côté ultérieur</translation>
    </message>
    <message>
        <source>Which state of the later side</source>
        <translation>Quel état du côté ultérieur</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Changements</translation>
    </message>
    <message>
        <source>What can be chosen</source>
        <translation>Ce qui peut être choisi</translation>
    </message>
    <message>
        <source>&amp;Earlier:</source>
        <translation>A&amp;vant&#xa0;:</translation>
    </message>
    <message>
        <source>State ea&amp;rlier:</source>
        <translation>&amp;État avant&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Later:</source>
        <translation>A&amp;près&#xa0;:</translation>
    </message>
    <message>
        <source>State l&amp;ater:</source>
        <translation>Éta&amp;t après&#xa0;:</translation>
    </message>
    <message>
        <source>There is nothing to compare yet.</source>
        <translation>Il n’y a encore rien à comparer.</translation>
    </message>
    <message>
        <source>the listing as it is</source>
        <translation>la liste telle qu’elle est</translation>
    </message>
    <message>
        <source>the folder as it is now</source>
        <translation>le dossier tel qu’il est maintenant</translation>
    </message>
    <message>
        <source>Stopped. What has changed is only known at the end.</source>
        <translation>Arrêté. Ce qui a changé n’est connu qu’à la fin.</translation>
    </message>
    <message>
        <source>Comparing</source>
        <translation>Comparaison en cours</translation>
    </message>
    <message>
        <source>plan needs the words to find, in one argument, or - for a list</source>
        <translation>plan a besoin des mots à trouver, en un seul argument, ou de - pour une liste</translation>
    </message>
    <message>
        <source>standard input can be the list or a listing, not both</source>
        <translation>l’entrée standard peut être la liste des fichiers voulus ou une liste du catalogue, pas les deux</translation>
    </message>
    <message>
        <source>%1 can be read once only, and a plan for words needs to read it twice</source>
        <translation>%1 ne peut être lu qu’une fois, et un plan pour des mots doit le lire deux fois</translation>
    </message>
    <message>
        <source>there is nothing to copy, so no script</source>
        <translation>il n’y a rien à copier, donc pas de script</translation>
    </message>
    <message>
        <source>Not found: %1</source>
        <translation>Introuvable&#xa0;: %1</translation>
    </message>
    <message>
        <source>Volumes to insert: %1. To copy: %2</source>
        <translation>Volumes à insérer&#xa0;: %1. À copier&#xa0;: %2</translation>
    </message>
    <message>
        <source>There is no way with fewer volumes</source>
        <translation>Moins de volumes ne suffisent pas</translation>
    </message>
    <message>
        <source>There may be a way with fewer volumes: more than %1 have files in common, so each next one was chosen greedily, for having most of what was left</source>
        <translation>Moins de volumes suffiraient peut-être&#xa0;: plus de %1 ont des fichiers en commun, et le suivant a donc toujours été celui qui avait le plus de ce qui restait (méthode gloutonne)</translation>
    </message>
    <message>
        <source>Not found:</source>
        <translation>Introuvables&#xa0;:</translation>
    </message>
    <message>
        <source>Not there: %1</source>
        <translation>Absent&#xa0;: %1</translation>
    </message>
    <message>
        <source>The folder where it is now (nothing: leave it out):</source>
        <translation>Le dossier où il est maintenant (rien&#xa0;: le laisser de côté)&#xa0;:</translation>
    </message>
    <message>
        <source>Nobody answers. Please save this script and start it in a terminal.</source>
        <translation>Personne ne répond. Veuillez enregistrer ce script et le lancer dans un terminal.</translation>
    </message>
    <message>
        <source>None of the files is in %1.</source>
        <translation>Aucun des fichiers n’est dans %1.</translation>
    </message>
    <message>
        <source>rsync is needed, and is not installed.</source>
        <translation>rsync est nécessaire et n’est pas installé.</translation>
    </message>
    <message>
        <source>Not everything was copied.</source>
        <translation>Tout n’a pas été copié.</translation>
    </message>
    <message>
        <source>Please insert volume %1 of %2: %3. It was listed at %4; %5 to copy.</source>
        <translation>Veuillez insérer le volume %1 sur %2&#xa0;: %3. Il a été listé sous %4&#xa0;; à copier&#xa0;: %5.</translation>
    </message>
    <message>
        <source>Say which volumes to fetch for files that are wanted</source>
        <translation>Dire quels volumes aller chercher pour des fichiers</translation>
    </message>
    <message>
        <source>text (default) or json</source>
        <translation>text (par défaut) ou json</translation>
    </message>
    <message>
        <source>Write a script that copies the files with rsync</source>
        <translation>Écrire un script qui copie avec rsync</translation>
    </message>
    <message>
        <source>Where that script copies them</source>
        <translation>Où ce script les copie</translation>
    </message>
    <message>
        <source>The fewest disks for all hits of a search</source>
        <translation>Le moins de disques possible pour tous les résultats d’une recherche</translation>
    </message>
    <message>
        <source>A script that asks for each disk and copies; start it with: sh fetch.sh</source>
        <translation>Un script qui demande chaque disque et copie&#xa0;; pour le lancer&#xa0;: sh fetch.sh</translation>
    </message>
    <message>
        <source>Only for some hits</source>
        <translation>Pour quelques résultats seulement</translation>
    </message>
    <message>
        <source>For a list, one name a line</source>
        <translation>Pour une liste, un nom par ligne</translation>
    </message>
    <message>
        <source>Writes the fewest volumes that hold all wanted files, in the order in which to insert them, with what to copy from each. Wanted are the hits of a search for WORDS, as find makes it; or, with - in place of WORDS, the files of a list on standard input: a line each, with JSON as find writes it, or with a name. A name alone means every file of that name.</source>
        <translation>Écrit le moins de volumes possible qui contiennent tous les fichiers voulus, dans l’ordre où les insérer, avec ce qu’il faut copier de chacun. Sont voulus les résultats d’une recherche de WORDS, comme find la fait&#xa0;; ou, avec - à la place de WORDS, les fichiers d’une liste sur l’entrée standard&#xa0;: une ligne chacun, avec du JSON comme find l’écrit, ou avec un nom. Un nom seul désigne tous les fichiers de ce nom.</translation>
    </message>
    <message>
        <source>Files are the same that have the same name, whatever its case, and the same size to the byte; nobody looks into them, and any one will do. A file without a size of its own in the listing is the same as no other. Listings hold the first 65 characters of a name; longer names that differ only behind them count as the same.</source>
        <translation>Sont les mêmes les fichiers qui ont le même nom, majuscules ou non, et la même taille à l’octet près&#xa0;; personne ne regarde dedans, et n’importe lequel convient. Un fichier sans taille propre dans la liste n’est le même qu’aucun autre. Les listes contiennent les 65 premiers caractères d’un nom&#xa0;; les noms plus longs qui ne diffèrent qu’ensuite comptent comme les mêmes.</translation>
    </message>
    <message>
        <source>A volume is what a listing calls so; two listings never share one. What only one volume has, and what one has that another has too, is settled first. Where of the rest up to 20 volumes have files in common, all combinations are tried, and there is no way with fewer. Of more, each next one is chosen greedily, for having most of what is left; the plan says so, and there may be a way with fewer.</source>
        <translation>Un volume est ce qu’une liste nomme ainsi&#xa0;; deux listes n’en partagent jamais un. Ce qu’un seul volume a, et ce que l’un a et qu’un autre a aussi, est réglé d’abord. Là où, du reste, jusqu’à 20 volumes ont des fichiers en commun, toutes les combinaisons sont essayées, et moins de volumes ne suffisent pas. S’il y en a plus, le suivant est toujours celui qui a le plus de ce qui reste&#xa0;; le plan le dit, et moins de volumes suffiraient peut-être.</translation>
    </message>
    <message>
        <source>With words, listings are read twice, so they cannot come from a pipe. The script is for any POSIX shell. It asks for each volume and for the folder where it is now, finds the listing&apos;s folders there, and copies into a folder for each volume. A file that is not there is told, and the others are copied.</source>
        <translation>Avec des mots, les listes sont lues deux fois et ne peuvent donc pas venir d’un tube. Le script est pour tout shell POSIX. Il demande chaque volume et le dossier où il est maintenant, y trouve les dossiers de la liste et copie dans un dossier par volume. Un fichier absent est signalé, et les autres sont copiés.</translation>
    </message>
    <message>
        <source>there is no format &quot;%1&quot;; the formats are text and json</source>
        <translation>il n’y a pas de format «&#xa0;%1&#xa0;»&#xa0;; les formats sont text et json</translation>
    </message>
    <message>
        <source>--script and --to FOLDER go together</source>
        <translation>--script et --to DOSSIER vont ensemble</translation>
    </message>
    <message>
        <source>a plan is written in a format or as a script, not as both</source>
        <translation>un plan est écrit dans un format ou comme script, pas les deux</translation>
    </message>
    <message>
        <source>Only the first %1 of %2 rows are shown.</source>
        <translation>Seules les %1 premières lignes sur %2 sont affichées.</translation>
    </message>
    <message>
        <source>If it is dumb, find colours nothing either.</source>
        <translation>Si elle vaut dumb, find ne colore rien non plus.</translation>
    </message>
    <message>
        <source>there are no folders of your own yet; quorvin-cli sources add FOLDER adds one</source>
        <translation>il n’y a pas encore de dossiers personnels&#xa0;; quorvin-cli sources add DOSSIER en ajoute un</translation>
    </message>
    <message>
        <source>there is nothing to search yet. Name listings after the words, or add folders or lists with quorvin-cli sources add</source>
        <translation>il n’y a encore rien où chercher. Nommez des listes après les mots, ou ajoutez des dossiers ou des listes avec quorvin-cli sources add</translation>
    </message>
    <message>
        <source>%1 is a database of plocate, which has to be installed to read it</source>
        <translation>%1 est une base de données de plocate, qui doit être installé pour la lire</translation>
    </message>
    <message>
        <source>plocate could not read %1: %2</source>
        <translation>plocate n’a pas pu lire %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 is a folder, not a listing; quorvin-cli index makes a listing of a folder</source>
        <translation>%1 est un dossier, pas une liste&#xa0;; quorvin-cli index fait une liste d’un dossier</translation>
    </message>
    <message>
        <source>the titles of the columns are written or not; --header and --no-header contradict</source>
        <translation>les titres des colonnes s’écrivent ou non&#xa0;; --header et --no-header se contredisent</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>%1 was not replaced, since it could not be kept in the listing history: %2</source>
        <translation>%1 n’a pas été remplacée, car son contenu n’a pas pu être gardé dans l’historique des listes&#xa0;: %2</translation>
    </message>
    <message>
        <source>The lists&apos; encoding, such as cp850; default: utf-8</source>
        <translation>Encodage des listes, par exemple cp850&#xa0;; défaut&#xa0;: utf-8</translation>
    </message>
    <message>
        <source>the system does not know the encoding &quot;%1&quot;</source>
        <translation>le système ne connaît pas l’encodage «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>not recognised</source>
        <translation>non reconnu</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Newest</source>
        <translation>Plus récent</translation>
    </message>
    <message>
        <source>Listed</source>
        <translation>Liste de</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Libre</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Note</translation>
    </message>
    <message numerus="yes">
        <source>%1 days ago</source>
        <translation>
            <numerusform>il y a %1 jour</numerusform>
            <numerusform>il y a %1 jours</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 months ago</source>
        <translation>
            <numerusform>il y a %1 mois</numerusform>
            <numerusform>il y a %1 mois</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 years ago</source>
        <translation>
            <numerusform>il y a %1 an</numerusform>
            <numerusform>il y a %1 ans</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 volume</source>
        <translation>%1 volume</translation>
    </message>
    <message numerus="yes">
        <source>%1 volumes</source>
        <translation>
            <numerusform>%1 volume</numerusform>
            <numerusform>%1 volumes</numerusform>
        </translation>
    </message>
    <message>
        <source>Listings of own folders, the lists of sources, the listing history and notes on volumes, unless another folder is chosen in the window under File, Options, or the program was copied somewhere as it is: then they are beside it. quorvin-cli sources names the folder.</source>
        <translation>Les listes de vos dossiers, les listes de sources, l’historique des listes et les notes sur les volumes, à moins qu’un autre dossier ne soit choisi dans la fenêtre sous Fichier, Options, ou que le programme n’ait été simplement copié quelque part&#xa0;: ils sont alors à côté de lui. quorvin-cli sources nomme le dossier.</translation>
    </message>
    <message>
        <source>volumes cannot be sorted by &quot;%1&quot;, only by volume, files, size, newest, listed, free or note</source>
        <translation>les volumes ne se trient pas par &quot;%1&quot;, seulement par volume, files, size, newest, listed, free ou note</translation>
    </message>
    <message>
        <source>--note goes with the name of a volume</source>
        <translation>--note va avec le nom d’un volume</translation>
    </message>
    <message>
        <source>there is no volume &quot;%1&quot;; quorvin-cli volumes shows those that there are</source>
        <translation>il n’y a pas de volume &quot;%1&quot;&#xa0;; quorvin-cli volumes montre ceux qu’il y a</translation>
    </message>
    <message>
        <source>several listings have a volume &quot;%1&quot;; name one of them behind it: %2</source>
        <translation>plusieurs listes ont un volume &quot;%1&quot;&#xa0;; nommez-en une derrière&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 is no file, so nothing can be noted on its volumes</source>
        <translation>%1 n’est pas un fichier, on ne peut donc rien noter sur ses volumes</translation>
    </message>
    <message>
        <source>Show what is on each volume, or note where it is kept</source>
        <translation>Montrer ce qu’il y a sur chaque volume, ou noter où il est</translation>
    </message>
    <message>
        <source>volume, files, size, newest, listed, free or note</source>
        <translation>volume, files, size, newest, listed, free ou note</translation>
    </message>
    <message>
        <source>Note this on the volume named in place of WORDS</source>
        <translation>Noter ceci sur le volume nommé au lieu de WORDS</translation>
    </message>
    <message>
        <source>The fullest one first</source>
        <translation>Le plus rempli d’abord</translation>
    </message>
    <message>
        <source>Which disks have photos, and how many</source>
        <translation>Quels disques ont des photos, et combien</translation>
    </message>
    <message>
        <source>Note where a disk is kept</source>
        <translation>Noter où un disque est rangé</translation>
    </message>
    <message>
        <source>Take the note away</source>
        <translation>Retirer la note</translation>
    </message>
    <message>
        <source>Writes a line for each volume of the listings: how many files it has and their bytes, when the newest of them was changed, how long ago its listing was written, and, where the folder of an own source is there now, how much is free on its drive. Behind the volume&apos;s name stands your own note. With WORDS, only files count that a search for these words finds. Without a LISTING, the user&apos;s own sources are looked through.</source>
        <translation>Écrit une ligne pour chaque volume des listes&#xa0;: combien de fichiers il contient et leurs octets, quand le plus récent a été modifié, depuis combien de temps sa liste est écrite, et, si le dossier d’une source propre est là, combien d’espace est libre sur son disque. Derrière le nom du volume vient votre propre note. Avec WORDS, seuls comptent les fichiers que trouve une recherche de ces mots. Sans LISTING, les sources de l’utilisateur sont parcourues.</translation>
    </message>
    <message>
        <source>A volume is what a listing calls so; two listings never share one. Bytes and dates are those of files with a size of their own in the listing. Volumes without what they are sorted by come last. In json, the newest file has its folder and name, and what is not known has no key.</source>
        <translation>Un volume est ce qu’une liste appelle ainsi&#xa0;; deux listes n’en partagent jamais un. Octets et dates sont ceux des fichiers qui ont leur propre taille dans la liste. Les volumes sans ce qui sert au tri viennent en dernier. En json, le fichier le plus récent a son dossier et son nom, et ce qui n’est pas connu n’a pas de clé.</translation>
    </message>
    <message>
        <source>--note writes nothing but keeps TEXT, which replaces an earlier note; it is shown in the window too. Where several listings have a volume of that name, name the listing behind it.</source>
        <translation>--note n’écrit rien mais retient TEXT, qui remplace une note antérieure&#xa0;; elle est montrée aussi dans la fenêtre. Si plusieurs listes ont un volume de ce nom, nommez la liste derrière lui.</translation>
    </message>
    <message>
        <source>A note has at most %1 characters</source>
        <translation>Une note a au plus %1 caractères</translation>
    </message>
    <message>
        <source>Note: %1</source>
        <translation>Note&#xa0;: %1</translation>
    </message>
    <message>
        <source>looking at volumes</source>
        <translation>examen des volumes</translation>
    </message>
    <message>
        <source>&amp;Volumes...</source>
        <translation>&amp;Volumes...</translation>
    </message>
    <message>
        <source>Note on %1</source>
        <translation>Note sur %1</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>Affi&amp;cher</translation>
    </message>
    <message>
        <source>Volumes</source>
        <translation>Volumes</translation>
    </message>
    <message>
        <source>Words that limit what is counted</source>
        <translation>Mots qui limitent ce qui est compté</translation>
    </message>
    <message>
        <source>Edit &amp;Note</source>
        <translation>Modifier la &amp;note</translation>
    </message>
    <message>
        <source>Show &amp;Folder</source>
        <translation>Montrer le &amp;dossier</translation>
    </message>
    <message>
        <source>Stopped. What is on a volume is known when its listing has been read.</source>
        <translation>Arrêté. Ce qu’il y a sur un volume n’est connu que lorsque sa liste a été lue.</translation>
    </message>
    <message>
        <source>%1 is not there now. Note: %2</source>
        <translation>%1 n’est pas là pour le moment. Note&#xa0;: %2</translation>
    </message>
    <message>
        <source>The note was not kept: %1</source>
        <translation>La note n’a pas été enregistrée&#xa0;: %1</translation>
    </message>
    <message>
        <source>the name of %1 is no text</source>
        <translation>le nom de %1 n’est pas du texte</translation>
    </message>
    <message>
        <source>there are no checksums of %1; quorvin-cli index --checksums makes them</source>
        <translation>il n’y a pas de sommes de contrôle de %1&#xa0;; quorvin-cli index --checksums les prend</translation>
    </message>
    <message>
        <source>%1 does not tell which folder it is of; please name the folder</source>
        <translation>%1 ne dit pas de quel dossier elle est&#xa0;; nommez le dossier</translation>
    </message>
    <message>
        <source>Put the SHA-256 of each file beside it; see verify</source>
        <translation>Mettre le SHA-256 de chaque fichier à côté&#xa0;; voir verify</translation>
    </message>
    <message>
        <source>The checksums are in a file beside the listing, with .sha256 behind its name; sha256sum -c reads it in the folder. When it is made again, a file that has the size and date that the listing told until then keeps its checksum and is not read.</source>
        <translation>Les sommes de contrôle sont dans un fichier à côté de la liste, avec .sha256 derrière son nom&#xa0;; sha256sum -c le lit dans le dossier. Quand on le refait, un fichier qui a la taille et la date que la liste disait jusque-là garde sa somme et n’est pas lu.</translation>
    </message>
    <message>
        <source>find, copies, plan and volumes: there were hits. compare: nothing differs. verify: all files are as they were. Others: all was done.</source>
        <translation>find, copies, plan et volumes&#xa0;: il y a eu des résultats. compare&#xa0;: rien ne diffère. verify&#xa0;: tous les fichiers sont comme ils étaient. Autres&#xa0;: tout a été fait.</translation>
    </message>
    <message>
        <source>find, copies, plan and volumes: there were none. compare: something differs. verify: some files are not as they were. history: there is no earlier version.</source>
        <translation>find, copies, plan et volumes&#xa0;: il n’y en a pas eu. compare&#xa0;: quelque chose diffère. verify&#xa0;: certains fichiers ne sont pas comme ils étaient. history&#xa0;: il n’y a pas de version antérieure.</translation>
    </message>
    <message>
        <source>No checksum: %1</source>
        <translation>Pas de somme de contrôle&#xa0;: %1</translation>
    </message>
    <message>
        <source>checksums: %1 of %2 files, %3 of %4</source>
        <translation>sommes de contrôle&#xa0;: %1 fichiers sur %2, %3 sur %4</translation>
    </message>
    <message>
        <source>verify needs a listing, or the description of an own folder</source>
        <translation>verify demande une liste, ou la description d’un dossier à vous</translation>
    </message>
    <message>
        <source>the commands are find, copies, compare, plan, volumes, index, verify, import, refresh, sources, history and cache</source>
        <translation>les commandes sont find, copies, compare, plan, volumes, index, verify, import, refresh, sources, history et cache</translation>
    </message>
    <message>
        <source>--checksums goes with --output: the checksums are put beside the listing</source>
        <translation>--checksums va avec --output&#xa0;: les sommes de contrôle sont mises à côté de la liste</translation>
    </message>
    <message>
        <source>--folders-only lists no files that --checksums could be of</source>
        <translation>--folders-only ne liste aucun fichier dont --checksums pourrait être</translation>
    </message>
    <message>
        <source>verify does not know what to do with &quot;%1&quot;</source>
        <translation>verify ne sait que faire de «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>less than a minute left</source>
        <translation>moins d’une minute</translation>
    </message>
    <message numerus="yes">
        <source>%1 minutes left</source>
        <translation>
            <numerusform>encore %1 minute</numerusform>
            <numerusform>encore %1 minutes</numerusform>
        </translation>
    </message>
    <message>
        <source>Stopped. The next verification of these checksums goes on here.</source>
        <translation>Arrêté. La prochaine vérification de ces sommes continue ici.</translation>
    </message>
    <message>
        <source>%1 of %2 files, %3 of %4</source>
        <translation>%1 fichiers sur %2, %3 sur %4</translation>
    </message>
    <message>
        <source>Of these, %1 files were read before it was stopped. --restart reads them again.</source>
        <translation>Parmi eux, %1 fichiers ont été lus avant l’arrêt. --restart les relit.</translation>
    </message>
    <message>
        <source>Lines of the checksums that were not understood: %1</source>
        <translation>Lignes des sommes de contrôle qui n’ont pas été comprises&#xa0;: %1</translation>
    </message>
    <message>
        <source>As they were: %1. Rotten: %2. Lost: %3. Changed: %4. Added: %5. Not read: %6</source>
        <translation>Comme ils étaient&#xa0;: %1. Abîmés&#xa0;: %2. Perdus&#xa0;: %3. Changés&#xa0;: %4. Ajoutés&#xa0;: %5. Non lus&#xa0;: %6</translation>
    </message>
    <message>
        <source>Say which files do not hold any more what they held</source>
        <translation>Dire quels fichiers ne contiennent plus la même chose</translation>
    </message>
    <message>
        <source>Begin again, also after one that was stopped</source>
        <translation>Recommencer, même après une qui a été arrêtée</translation>
    </message>
    <message>
        <source>Write an object for each of them, as JSON</source>
        <translation>Écrire un objet pour chacun, en JSON</translation>
    </message>
    <message>
        <source>Take the checksums</source>
        <translation>Prendre les sommes de contrôle</translation>
    </message>
    <message>
        <source>Read the disk again, years later</source>
        <translation>Relire le disque, des années plus tard</translation>
    </message>
    <message>
        <source>Where it is mounted elsewhere</source>
        <translation>S’il est monté ailleurs</translation>
    </message>
    <message>
        <source>Holds the files of a folder against the checksums beside its LISTING, which index --checksums has made. An own folder may be called by its description. Lines start with ! for a file that has the size and date of the listing and holds something else, so that its medium has lost it; - for one that is gone; * for one that has another size or date; + for one that has no checksum; and ? for one that cannot be read, with the reason behind it.</source>
        <translation>Compare les fichiers d’un dossier aux sommes de contrôle à côté de sa LISTING, qu’index --checksums a prises. Un dossier à vous peut être appelé par sa description. Les lignes commencent par ! pour un fichier qui a la taille et la date de la liste et contient autre chose, si bien que son support l’a perdu&#xa0;; - pour un fichier disparu&#xa0;; * pour un fichier d’une autre taille ou date&#xa0;; + pour un fichier sans somme&#xa0;; et ? pour un fichier qui ne peut pas être lu, avec la raison derrière.</translation>
    </message>
    <message>
        <source>A file with another size or date was changed on purpose, and is not read. Where the listing does not tell these, one that holds something else counts as changed.</source>
        <translation>Un fichier d’une autre taille ou date a été changé exprès, et n’est pas lu. Là où la liste ne les dit pas, un fichier qui contient autre chose compte comme changé.</translation>
    </message>
    <message>
        <source>One that is stopped, by Ctrl-C or by a crash, goes on where it was when it is started again. The exit status is 0 if all files are as they were, 1 if some are not, and 2 if something could not be read.</source>
        <translation>Une vérification arrêtée, par Ctrl-C ou par une panne, continue où elle était quand on la relance. Le code de retour est 0 si tous les fichiers sont comme ils étaient, 1 si certains ne le sont pas, et 2 si quelque chose n’a pas pu être lu.</translation>
    </message>
    <message>
        <source>Show what is searched, or change it: add, remove, move</source>
        <translation>Sources de recherche&#xa0;: montrer, add, remove, move</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vidéo</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documents</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>Archives</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>Programmes</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Autres</translation>
    </message>
    <message>
        <source>No date</source>
        <translation>Sans date</translation>
    </message>
    <message>
        <source>Up to %1</source>
        <translation>Jusqu’en %1</translation>
    </message>
    <message>
        <source>From %1 on</source>
        <translation>À partir de %1</translation>
    </message>
    <message>
        <source>Files right here</source>
        <translation>Fichiers d’ici même</translation>
    </message>
    <message>
        <source>%1, %2, %3%. Mostly %4, %5</source>
        <translation>%1, %2, %3&#xa0;%. Surtout %4, %5</translation>
    </message>
    <message>
        <source>&amp;Read Again</source>
        <translation>&amp;Relire</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>Mo&amp;nter</translation>
    </message>
    <message>
        <source>Space Map</source>
        <translation>Carte de l’espace</translation>
    </message>
    <message>
        <source>Space Map of %1</source>
        <translation>Carte de l’espace de %1</translation>
    </message>
    <message>
        <source>Space map</source>
        <translation>Carte de l’espace</translation>
    </message>
    <message>
        <source>What the colours show</source>
        <translation>Ce que montrent les couleurs</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Genre</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Année</translation>
    </message>
    <message>
        <source>C&amp;olours:</source>
        <translation>C&amp;ouleurs&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Search Here</source>
        <translation>Chercher &amp;ici</translation>
    </message>
    <message>
        <source>Stopped. The map is drawn when everything has been read.</source>
        <translation>Arrêté. La carte est dessinée quand tout a été lu.</translation>
    </message>
    <message>
        <source>All volumes</source>
        <translation>Tous les volumes</translation>
    </message>
    <message>
        <source>There is nothing that takes up space.</source>
        <translation>Il n’y a rien qui prenne de la place.</translation>
    </message>
    <message>
        <source>Space &amp;Map</source>
        <translation>Carte de l’&amp;espace</translation>
    </message>
    <message>
        <source>Empty for all files</source>
        <translation>Vide pour tous les fichiers</translation>
    </message>
    <message>
        <source>Shows as rectangles what takes up space on all volumes</source>
        <translation>Montre en rectangles ce qui prend de la place sur tous les volumes</translation>
    </message>
    <message>
        <source>planning what to fetch</source>
        <translation>la planification de ce qu’il faut chercher</translation>
    </message>
    <message>
        <source>Fetch P&amp;lan...</source>
        <translation>P&amp;lan de collecte...</translation>
    </message>
    <message>
        <source>A plan can be made for at most %1 hits.</source>
        <translation>Un plan peut être fait pour %1 résultats au plus.</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>&amp;Plan Again</source>
        <translation>Re&amp;planifier</translation>
    </message>
    <message>
        <source>Save Te&amp;xt...</source>
        <translation>Enregistrer le &amp;texte...</translation>
    </message>
    <message>
        <source>Save &amp;Script...</source>
        <translation>Enregistrer le &amp;script...</translation>
    </message>
    <message>
        <source>Fetch Plan</source>
        <translation>Plan de collecte</translation>
    </message>
    <message>
        <source>Volumes to insert, and what to copy from them</source>
        <translation>Volumes à insérer, et ce qu’il faut en copier</translation>
    </message>
    <message>
        <source>A script for a terminal that asks for each volume and copies its files with rsync</source>
        <translation>Un script pour un terminal, qui demande chaque volume et copie ses fichiers avec rsync</translation>
    </message>
    <message>
        <source>Insert these volumes, one after another:</source>
        <translation>Insérez ces volumes, l’un après l’autre&#xa0;:</translation>
    </message>
    <message>
        <source>Stopped. Only all listings together tell which volumes are needed.</source>
        <translation>Arrêté. Seules toutes les listes ensemble disent quels volumes il faut.</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Introuvables</translation>
    </message>
    <message>
        <source>Save Plan</source>
        <translation>Enregistrer le plan</translation>
    </message>
    <message>
        <source>Save Script</source>
        <translation>Enregistrer le script</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Enregistré&#xa0;: %1</translation>
    </message>
    <message>
        <source>Nothing was saved: %1</source>
        <translation>Rien n’a été enregistré&#xa0;: %1</translation>
    </message>
    <message>
        <source>A search is for a folder. Choose one in the volume.</source>
        <translation>Une recherche porte sur un dossier. Choisissez-en un dans le volume.</translation>
    </message>
    <message>
        <source>Changed or rotten: %1. The earlier listing was made after its checksums, so it does not tell.</source>
        <translation>Modifié ou abîmé&#xa0;: %1. La liste précédente a été faite après ses sommes de contrôle et ne le dit donc pas.</translation>
    </message>
    <message>
        <source>The listing was made after the checksums, so it does not tell rot from change; quorvin-cli index --checksums renews both.</source>
        <translation>La liste a été faite après les sommes de contrôle et ne dit donc pas ce qui est abîmé ou modifié&#xa0;; quorvin-cli index --checksums renouvelle les deux.</translation>
    </message>
</context>
<context>
    <name>quorvin::Texts::Texts</name>
    <message>
        <source>Being looked for...</source>
        <translation>Recherche en cours...</translation>
    </message>
</context>
</TS>
