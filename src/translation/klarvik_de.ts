<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>AppShell</name>
    <message>
        <source>Dismiss</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Empty the Trash?</source>
        <translation>Papierkorb leeren?</translation>
    </message>
    <message>
        <source>Empty Trash</source>
        <translation>Papierkorb leeren</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
</context>
<context>
    <name>AppTable</name>
    <message>
        <source>Installed apps</source>
        <translation>Installierte Apps</translation>
    </message>
</context>
<context>
    <name>AppUninstallerView</name>
    <message>
        <source>TOTAL</source>
        <translation>GESAMT</translation>
    </message>
    <message>
        <source>LEFTOVER</source>
        <translation>REST</translation>
    </message>
    <message>
        <source>WHAT IT IS</source>
        <translation>WAS ES IST</translation>
    </message>
    <message>
        <source>SIZE</source>
        <translation>GRÖSSE</translation>
    </message>
    <message>
        <source>Search apps</source>
        <translation>Apps suchen</translation>
    </message>
    <message>
        <source>Sorted by total size</source>
        <translation>Nach Gesamtgröße sortiert</translation>
    </message>
    <message>
        <source>All apps</source>
        <translation>Alle Apps</translation>
    </message>
    <message>
        <source>Back to the list of all apps</source>
        <translation>Zurück zur Liste aller Apps</translation>
    </message>
</context>
<context>
    <name>CleanBars</name>
    <message>
        <source>Reclaimed per clean</source>
        <translation>Gewonnen je Bereinigung</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Copied</source>
        <translation>Kopiert</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy this command</source>
        <translation>Diesen Befehl kopieren</translation>
    </message>
    <message>
        <source>Run…</source>
        <translation>Ausführen …</translation>
    </message>
    <message>
        <source>Show what would be run, and run it with the system asking for the password</source>
        <translation>Zeigt, was ausgeführt würde, und führt es aus; das System fragt nach dem Passwort</translation>
    </message>
</context>
<context>
    <name>CompositionChart</name>
    <message>
        <source>in use</source>
        <translation>belegt</translation>
    </message>
</context>
<context>
    <name>DuplicateFinderView</name>
    <message>
        <source>FILE</source>
        <translation>DATEI</translation>
    </message>
    <message>
        <source>COPIES</source>
        <translation>KOPIEN</translation>
    </message>
    <message>
        <source>EACH</source>
        <translation>JE DATEI</translation>
    </message>
    <message>
        <source>RECLAIMABLE</source>
        <translation>LÖSCHBAR</translation>
    </message>
</context>
<context>
    <name>DuplicateRow</name>
    <message>
        <source>Keep this</source>
        <translation>Diese behalten</translation>
    </message>
</context>
<context>
    <name>DuplicateTable</name>
    <message>
        <source>Groups of equal files</source>
        <translation>Gruppen gleicher Dateien</translation>
    </message>
</context>
<context>
    <name>Duplicates</name>
    <message>
        <source>Rescan</source>
        <translation>Erneut suchen</translation>
    </message>
    <message>
        <source>Scan This Folder</source>
        <translation>Diesen Ordner durchsuchen</translation>
    </message>
    <message>
        <source>Klarvik reads only the folders listed here.</source>
        <translation>Klarvik liest nur die hier aufgeführten Ordner.</translation>
    </message>
    <message>
        <source>%1 reclaimable</source>
        <translation>%1 löschbar</translation>
    </message>
    <message numerus="yes">
        <source>%n groups so far</source>
        <translation>
            <numerusform>Bisher %n Gruppe</numerusform>
            <numerusform>Bisher %n Gruppen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n groups</source>
        <translation>
            <numerusform>%n Gruppe</numerusform>
            <numerusform>%n Gruppen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n extra copies</source>
        <translation>
            <numerusform>%n überzählige Kopie</numerusform>
            <numerusform>%n überzählige Kopien</numerusform>
        </translation>
    </message>
    <message>
        <source>one copy of each is always kept</source>
        <translation>eine Kopie bleibt immer erhalten</translation>
    </message>
    <message>
        <source>Compares file contents with SHA-256, not names. One copy of each is always kept.</source>
        <translation>Vergleicht Inhalte mit SHA-256, nicht Namen. Eine Kopie bleibt immer erhalten.</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>noch keine</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>%1 — click to remove</source>
        <translation>%1 – zum Entfernen klicken</translation>
    </message>
    <message>
        <source>%1 — the last folder cannot be removed</source>
        <translation>%1 – der letzte Ordner kann nicht entfernt werden</translation>
    </message>
    <message>
        <source>Hashing files</source>
        <translation>Dateien werden verglichen</translation>
    </message>
    <message>
        <source>Klarvik compares contents, so identical files are found even when they were renamed.</source>
        <translation>Klarvik vergleicht Inhalte. Gleiche Dateien werden auch gefunden, wenn sie umbenannt wurden.</translation>
    </message>
    <message>
        <source>Choose where to look</source>
        <translation>Wo soll gesucht werden?</translation>
    </message>
    <message>
        <source>Klarvik compares contents, not names, so it only reads the folders you name: %1. Nothing outside them is touched.</source>
        <translation>Klarvik vergleicht Inhalte statt Namen und liest darum nur die Ordner, die Sie nennen: %1. Alles andere bleibt unberührt.</translation>
    </message>
    <message>
        <source>Add a folder…</source>
        <translation>Ordner hinzufügen …</translation>
    </message>
    <message>
        <source>No duplicates</source>
        <translation>Keine Duplikate</translation>
    </message>
    <message>
        <source>Nothing in those folders is byte-for-byte identical.</source>
        <translation>In diesen Ordnern gibt es keine zwei gleichen Dateien.</translation>
    </message>
    <message>
        <source>Search stopped</source>
        <translation>Suche angehalten</translation>
    </message>
    <message>
        <source>%1% was done, so nobody knows yet whether those folders hold duplicates. Rescan to search them to the end.</source>
        <translation>%1 % waren durchsucht. Ob es in diesen Ordnern Duplikate gibt, ist noch offen. Suchen Sie erneut, um sie ganz zu durchsuchen.</translation>
    </message>
    <message>
        <source>Stopped at %1%</source>
        <translation>Bei %1 % angehalten</translation>
    </message>
    <message>
        <source>Min size %1 MB</source>
        <translation>Ab %1 MB</translation>
    </message>
    <message numerus="yes">
        <source>%1 selected · %n copies</source>
        <translation>
            <numerusform>%1 ausgewählt · %n Kopie</numerusform>
            <numerusform>%1 ausgewählt · %n Kopien</numerusform>
        </translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>%1 löschen</translation>
    </message>
    <message>
        <source>One copy of every group stays where it is. Deletions go to Trash.</source>
        <translation>Von jeder Gruppe bleibt eine Kopie an ihrem Ort. Der Rest kommt in den Papierkorb.</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>This copy stays</source>
        <translation>Diese Kopie bleibt</translation>
    </message>
    <message>
        <source>Keep this copy instead</source>
        <translation>Stattdessen diese Kopie behalten</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n copies, %2 reclaimable</source>
        <translation>
            <numerusform>%1, %n Kopie, %2 löschbar</numerusform>
            <numerusform>%1, %n Kopien, %2 löschbar</numerusform>
        </translation>
    </message>
    <message>
        <source>keep</source>
        <translation>behalten</translation>
    </message>
    <message>
        <source>delete</source>
        <translation>löschen</translation>
    </message>
    <message>
        <source>Less than a minute left</source>
        <translation>Noch weniger als eine Minute</translation>
    </message>
    <message numerus="yes">
        <source>About %n minutes left</source>
        <translation>
            <numerusform>Noch etwa %n Minute</numerusform>
            <numerusform>Noch etwa %n Minuten</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Engine</name>
    <message>
        <source>App identifier is too short to match residuals safely.</source>
        <translation>Die Kennung der App ist zu kurz, um Reste sicher zuzuordnen.</translation>
    </message>
    <message>
        <source>~/%1 holds your own files, not junk.</source>
        <translation>~/%1 enthält Ihre eigenen Dateien.</translation>
    </message>
    <message>
        <source>%1 is not a place apps leave residual files.</source>
        <translation>%1 ist kein Ort, an dem Apps Reste hinterlassen.</translation>
    </message>
    <message>
        <source>%1 is shared by several apps.</source>
        <translation>%1 wird von mehreren Apps benutzt.</translation>
    </message>
    <message>
        <source>%1 does not belong to the app being removed.</source>
        <translation>%1 gehört nicht zu der App, die entfernt wird.</translation>
    </message>
    <message>
        <source>~/%1 is no app that Klarvik removes.</source>
        <translation>~/%1 ist keine App, die Klarvik entfernt.</translation>
    </message>
    <message>
        <source>~/%1 holds keys and passwords.</source>
        <translation>~/%1 enthält Schlüssel und Passwörter.</translation>
    </message>
    <message>
        <source>~/%1 is no trail that Klarvik clears.</source>
        <translation>~/%1 ist keine Spur, die Klarvik löscht.</translation>
    </message>
    <message>
        <source>~/%1 is no place that Klarvik cleans.</source>
        <translation>~/%1 ist kein Ort, den Klarvik bereinigt.</translation>
    </message>
    <message>
        <source>~/%1 is a whole folder, not a file you picked.</source>
        <translation>~/%1 ist ein ganzer Ordner, keine ausgewählte Datei.</translation>
    </message>
    <message>
        <source>Refusing to touch another user account.</source>
        <translation>Andere Benutzerkonten bleiben unberührt.</translation>
    </message>
    <message>
        <source>%1 holds keys and passwords.</source>
        <translation>%1 enthält Schlüssel und Passwörter.</translation>
    </message>
    <message>
        <source>%1 is outside the locations Klarvik cleans.</source>
        <translation>%1 liegt außerhalb der Orte, die Klarvik bereinigt.</translation>
    </message>
    <message>
        <source>Refusing to delete the home directory.</source>
        <translation>Der persönliche Ordner wird nicht gelöscht.</translation>
    </message>
    <message>
        <source>%1 is a system directory.</source>
        <translation>%1 ist ein Systemordner.</translation>
    </message>
    <message>
        <source>%1 holds your home.</source>
        <translation>%1 enthält Ihren persönlichen Ordner.</translation>
    </message>
    <message>
        <source>Path is not absolute.</source>
        <translation>Der Pfad ist nicht absolut.</translation>
    </message>
    <message>
        <source>Path contains a parent-directory reference.</source>
        <translation>Der Pfad verweist auf einen übergeordneten Ordner.</translation>
    </message>
    <message>
        <source>~/%1 is too broad to delete safely.</source>
        <translation>~/%1 ist zu umfassend, um sicher gelöscht zu werden.</translation>
    </message>
    <message>
        <source>CoreSimulator Caches</source>
        <translation>CoreSimulator-Caches</translation>
    </message>
    <message>
        <source>%1 (%2) — unavailable</source>
        <translation>%1 (%2) – nicht verfügbar</translation>
    </message>
    <message>
        <source>Docker reclaimable (images, containers, volumes, cache)</source>
        <translation>In Docker löschbar (Abbilder, Container, Volumes, Cache)</translation>
    </message>
    <message>
        <source>Scan stopped</source>
        <translation>Scan angehalten</translation>
    </message>
    <message>
        <source>Scan complete</source>
        <translation>Scan abgeschlossen</translation>
    </message>
    <message>
        <source>%1, revision %2</source>
        <translation>%1, Revision %2</translation>
    </message>
    <message>
        <source>iPhone Backup — %1</source>
        <translation>iPhone-Backup – %1</translation>
    </message>
    <message>
        <source>Snapshot — %1</source>
        <translation>Snapshot – %1</translation>
    </message>
    <message>
        <source>📱 Firmware: %1</source>
        <translation>📱 Firmware: %1</translation>
    </message>
    <message>
        <source>SYSTEM TRAILS</source>
        <translation>SPUREN DES SYSTEMS</translation>
    </message>
    <message>
        <source>The update feed cannot be used.</source>
        <translation>Die Update-Liste ist unbrauchbar.</translation>
    </message>
    <message>
        <source>The update could not be saved in your Downloads folder.</source>
        <translation>Das Update konnte nicht in Ihrem Download-Ordner gespeichert werden.</translation>
    </message>
    <message>
        <source>The update is not what the makers of Klarvik have signed, so Klarvik has thrown it away.</source>
        <translation>Das Update ist nicht das, was die Hersteller von Klarvik signiert haben, darum hat Klarvik es verworfen.</translation>
    </message>
    <message>
        <source>The update is no longer the file that was checked, so Klarvik does not open it.</source>
        <translation>Das Update ist nicht mehr die geprüfte Datei, darum öffnet Klarvik es nicht.</translation>
    </message>
    <message>
        <source>The update was put off.</source>
        <translation>Das Update wurde verschoben.</translation>
    </message>
    <message>
        <source>The update was cancelled.</source>
        <translation>Das Update wurde abgebrochen.</translation>
    </message>
    <message>
        <source>No feed has been named.</source>
        <translation>Es ist keine Update-Liste eingerichtet.</translation>
    </message>
    <message>
        <source>The feed is too long.</source>
        <translation>Die Update-Liste ist zu lang.</translation>
    </message>
    <message>
        <source>The update feed could not be read.</source>
        <translation>Die Update-Liste konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The feed is no appcast.</source>
        <translation>Die Update-Liste hat ein unbekanntes Format.</translation>
    </message>
    <message>
        <source>The update is longer than announced, so Klarvik has thrown it away.</source>
        <translation>Das Update ist länger als angekündigt, darum hat Klarvik es verworfen.</translation>
    </message>
    <message>
        <source>The update could not be downloaded.</source>
        <translation>Das Update konnte nicht geladen werden.</translation>
    </message>
    <message>
        <source>The update is shorter than announced, so Klarvik has thrown it away.</source>
        <translation>Das Update ist kürzer als angekündigt, darum hat Klarvik es verworfen.</translation>
    </message>
    <message>
        <source>The update server offers no secure connection, so Klarvik does not listen to it.</source>
        <translation>Der Update-Server bietet keine sichere Verbindung, darum hört Klarvik nicht auf ihn.</translation>
    </message>
    <message>
        <source>The server sends us from place to place.</source>
        <translation>Der Server leitet immer wieder weiter.</translation>
    </message>
    <message>
        <source>The server gave no file.</source>
        <translation>Der Server hat keine Datei geliefert.</translation>
    </message>
    <message>
        <source>The server did not answer in time.</source>
        <translation>Der Server hat nicht rechtzeitig geantwortet.</translation>
    </message>
    <message>
        <source>Version %1 is not offered over a secure connection, so Klarvik leaves it alone.</source>
        <translation>Version %1 kommt nicht über eine sichere Verbindung, darum rührt Klarvik sie nicht an.</translation>
    </message>
    <message>
        <source>Version %1 does not say how long it is, so Klarvik leaves it alone.</source>
        <translation>Version %1 nennt ihre Länge nicht, darum rührt Klarvik sie nicht an.</translation>
    </message>
    <message>
        <source>Version %1 is not signed, so Klarvik leaves it alone.</source>
        <translation>Version %1 ist nicht signiert, darum rührt Klarvik sie nicht an.</translation>
    </message>
    <message>
        <source>Version %1 is not signed by the makers of Klarvik, so Klarvik leaves it alone.</source>
        <translation>Version %1 ist nicht von den Herstellern von Klarvik signiert, darum rührt Klarvik sie nicht an.</translation>
    </message>
    <message>
        <source>There is a newer version, but this copy of Klarvik has no key to check it with.</source>
        <translation>Es gibt eine neuere Version, aber diese Kopie von Klarvik hat keinen Schlüssel, um sie zu prüfen.</translation>
    </message>
    <message>
        <source>Starting scan</source>
        <translation>Scan beginnt</translation>
    </message>
    <message>
        <source>STORAGE</source>
        <translation>SPEICHER</translation>
    </message>
    <message>
        <source>APPS</source>
        <translation>APPS</translation>
    </message>
    <message>
        <source>Smart Scan</source>
        <translation>Smart-Scan</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Speicher</translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation>Duplikate</translation>
    </message>
    <message>
        <source>in extra copies</source>
        <translation>in überzähligen Kopien</translation>
    </message>
    <message>
        <source>Large Files</source>
        <translation>Große Dateien</translation>
    </message>
    <message>
        <source>in big files</source>
        <translation>in großen Dateien</translation>
    </message>
    <message>
        <source>System Data</source>
        <translation>Systemdaten</translation>
    </message>
    <message>
        <source>removable</source>
        <translation>entfernbar</translation>
    </message>
    <message>
        <source>Uninstaller</source>
        <translation>Deinstallieren</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Privatsphäre</translation>
    </message>
    <message>
        <source>of browsing trails</source>
        <translation>an Browser-Spuren</translation>
    </message>
    <message>
        <source>Analysis complete</source>
        <translation>Analyse abgeschlossen</translation>
    </message>
    <message>
        <source>Snapshot: %1</source>
        <translation>Snapshot: %1</translation>
    </message>
    <message>
        <source>Firmware: %1</source>
        <translation>Firmware: %1</translation>
    </message>
    <message>
        <source>Smaller folders</source>
        <translation>Kleinere Ordner</translation>
    </message>
    <message>
        <source>The rest of the disk</source>
        <translation>Der Rest des Datenträgers</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Newest copy</source>
        <translation>Neueste Kopie</translation>
    </message>
    <message>
        <source>Oldest copy</source>
        <translation>Älteste Kopie</translation>
    </message>
    <message>
        <source>Shallowest path</source>
        <translation>Kürzester Pfad</translation>
    </message>
    <message>
        <source>Collecting files...</source>
        <translation>Dateien werden gesammelt …</translation>
    </message>
    <message numerus="yes">
        <source>Grouping by size (%n files)...</source>
        <translation>
            <numerusform>Nach Größe ordnen (%n Datei) …</numerusform>
            <numerusform>Nach Größe ordnen (%n Dateien) …</numerusform>
        </translation>
    </message>
    <message>
        <source>Building results...</source>
        <translation>Ergebnisse werden erstellt …</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Andere</translation>
    </message>
    <message>
        <source>never</source>
        <translation>nie</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Last opened</source>
        <translation>Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Scanning browser history...</source>
        <translation>Scannen: Browserverlauf …</translation>
    </message>
    <message>
        <source>Scanning browser cookies...</source>
        <translation>Scannen: Browser-Cookies …</translation>
    </message>
    <message>
        <source>Scanning browser cache...</source>
        <translation>Scannen: Browser-Cache …</translation>
    </message>
    <message>
        <source>Scanning recent files...</source>
        <translation>Scannen: zuletzt benutzte Dateien …</translation>
    </message>
    <message>
        <source>Scanning recent apps...</source>
        <translation>Scannen: zuletzt benutzte Apps …</translation>
    </message>
    <message>
        <source>Scanning downloads list...</source>
        <translation>Scannen: Download-Liste …</translation>
    </message>
    <message>
        <source>Scanning clipboard...</source>
        <translation>Scannen: Zwischenablage …</translation>
    </message>
    <message>
        <source>Scanning quarantine database...</source>
        <translation>Scannen: Quarantäne-Datenbank …</translation>
    </message>
    <message>
        <source>Scanning location cache...</source>
        <translation>Scannen: Orts-Cache …</translation>
    </message>
    <message>
        <source>%1 Klarvik can remove from the folders macOS keeps out of Storage settings</source>
        <translation>%1 kann Klarvik aus Ordnern entfernen, die macOS in den Speichereinstellungen nicht zeigt</translation>
    </message>
    <message>
        <source>%1 Klarvik can remove from the folders that apps keep out of sight</source>
        <translation>%1 kann Klarvik aus Ordnern entfernen, die Apps im Verborgenen führen</translation>
    </message>
    <message>
        <source>%1 could not be started.</source>
        <translation>%1 konnte nicht gestartet werden.</translation>
    </message>
    <message>
        <source>%1 did not remove it.</source>
        <translation>%1 hat es nicht entfernt.</translation>
    </message>
    <message>
        <source>%1 did not remove it: %2</source>
        <translation>%1 hat es nicht entfernt: %2</translation>
    </message>
    <message>
        <source>%1 does not run on this computer.</source>
        <translation>%1 läuft auf diesem Computer nicht.</translation>
    </message>
    <message>
        <source>%1 is managed by macOS while it is running.</source>
        <translation>%1 wird im Betrieb von macOS verwaltet.</translation>
    </message>
    <message>
        <source>%1 is protected by Linux and by Klarvik.</source>
        <translation>%1 ist durch Linux und Klarvik geschützt.</translation>
    </message>
    <message>
        <source>%1 is protected by macOS and by Klarvik.</source>
        <translation>%1 ist durch macOS und Klarvik geschützt.</translation>
    </message>
    <message>
        <source>%1 is running. Close it first.</source>
        <translation>%1 läuft. Schließen Sie es zuerst.</translation>
    </message>
    <message>
        <source>%1 took too long, and was stopped.</source>
        <translation>%1 brauchte zu lange und wurde angehalten.</translation>
    </message>
    <message>
        <source>%1 was stopped.</source>
        <translation>%1 wurde angehalten.</translation>
    </message>
    <message>
        <source>%1 · macOS needs these</source>
        <translation>%1 · macOS braucht sie</translation>
    </message>
    <message numerus="yes">
        <source>%n apps · dragging one to the Trash leaves its support files behind</source>
        <translation>
            <numerusform>%n App · zieht man sie in den Papierkorb, bleiben ihre Hilfsdateien zurück</numerusform>
            <numerusform>%n Apps · zieht man eine in den Papierkorb, bleiben ihre Hilfsdateien zurück</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n apps · removing one leaves its settings and caches behind</source>
        <translation>
            <numerusform>%n App · nach dem Entfernen bleiben Einstellungen und Caches zurück</numerusform>
            <numerusform>%n Apps · nach dem Entfernen bleiben Einstellungen und Caches zurück</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n smaller items</source>
        <translation>
            <numerusform>%n kleineres Objekt</numerusform>
            <numerusform>%n kleinere Objekte</numerusform>
        </translation>
    </message>
    <message>
        <source>* (Flatpak data)</source>
        <translation>* (Flatpak-Daten)</translation>
    </message>
    <message>
        <source>* (Flatpak)</source>
        <translation>* (Flatpak)</translation>
    </message>
    <message>
        <source>* (snap data)</source>
        <translation>* (Snap-Daten)</translation>
    </message>
    <message>
        <source>* (snap)</source>
        <translation>* (snap)</translation>
    </message>
    <message>
        <source>* (snap, revision *)</source>
        <translation>* (Snap, Revision *)</translation>
    </message>
    <message>
        <source>* * (SDKMAN)</source>
        <translation>* * (SDKMAN)</translation>
    </message>
    <message>
        <source>* * (asdf)</source>
        <translation>* * (asdf)</translation>
    </message>
    <message>
        <source>* *, * (JetBrains Toolbox)</source>
        <translation>* *, * (JetBrains Toolbox)</translation>
    </message>
    <message>
        <source>* file system cache</source>
        <translation>Dateisystem-Cache von *</translation>
    </message>
    <message>
        <source>/usr/local Data</source>
        <translation>Daten in /usr/local</translation>
    </message>
    <message>
        <source>/usr/share Data</source>
        <translation>Daten in /usr/share</translation>
    </message>
    <message>
        <source>A Java tool version that a project may ask for.</source>
        <translation>Eine Version eines Java-Werkzeugs, die ein Projekt verlangen kann.</translation>
    </message>
    <message>
        <source>A Node version with the programs you installed for it.</source>
        <translation>Eine Node-Version mit den Programmen, die Sie dafür installiert haben.</translation>
    </message>
    <message>
        <source>A Python that environments point to.</source>
        <translation>Ein Python, auf das Umgebungen verweisen.</translation>
    </message>
    <message>
        <source>A Python with the packages you installed for it.</source>
        <translation>Ein Python mit den Paketen, die Sie dafür installiert haben.</translation>
    </message>
    <message>
        <source>A Ruby with the gems you installed for it.</source>
        <translation>Ein Ruby mit den Gems, die Sie dafür installiert haben.</translation>
    </message>
    <message>
        <source>A base image; vagrant box add downloads it again.</source>
        <translation>Ein Basis-Abbild; „vagrant box add“ lädt es erneut.</translation>
    </message>
    <message>
        <source>A cache of an application that Klarvik knows: it is filled again when it is used.</source>
        <translation>Cache einer App, die Klarvik kennt: Er füllt sich bei Gebrauch wieder.</translation>
    </message>
    <message>
        <source>A cluster with everything deployed in it; minikube delete removes it cleanly.</source>
        <translation>Ein Cluster mit allem, was darin läuft; „minikube delete“ entfernt ihn sauber.</translation>
    </message>
    <message>
        <source>A compiler you installed; rustup toolchain uninstall also forgets it.</source>
        <translation>Ein von Ihnen installierter Compiler; „rustup toolchain uninstall“ entfernt ihn sauber.</translation>
    </message>
    <message>
        <source>A copy of what a server keeps. Remove files in it as you would on the server.</source>
        <translation>Eine Kopie dessen, was auf einem Server liegt. Was Sie hier löschen, geht auch dort verloren.</translation>
    </message>
    <message>
        <source>A crash report of one of your programs; only needed to report the fault.</source>
        <translation>Absturzbericht eines Ihrer Programme; nur nötig, um den Fehler zu melden.</translation>
    </message>
    <message>
        <source>A download of Steam that was not finished; it starts over.</source>
        <translation>Ein unfertiger Download von Steam; er beginnt von vorn.</translation>
    </message>
    <message>
        <source>A hidden folder of your home. Look into it before you remove anything.</source>
        <translation>Ein verborgener persönlicher Ordner. Sehen Sie hinein, bevor Sie etwas entfernen.</translation>
    </message>
    <message>
        <source>A menu entry whose program is gone.</source>
        <translation>Ein Menüeintrag, dessen Programm fehlt.</translation>
    </message>
    <message>
        <source>A model; downloading it again may take hours.</source>
        <translation>Ein Modell; es erneut zu laden kann Stunden dauern.</translation>
    </message>
    <message>
        <source>A program beside the system&apos;s own. Its installer or package removes it.</source>
        <translation>Ein Programm neben denen des Systems. Sein Installationsprogramm oder Paket entfernt es.</translation>
    </message>
    <message>
        <source>A project&apos;s environment that only lies in the cache folder; poetry install makes it again.</source>
        <translation>Die Umgebung eines Projekts, die nur im Cache-Ordner liegt; „poetry install“ erstellt sie neu.</translation>
    </message>
    <message>
        <source>A project&apos;s environment; pipenv install makes it again.</source>
        <translation>Die Umgebung eines Projekts; „pipenv install“ erstellt sie neu.</translation>
    </message>
    <message>
        <source>A temporary file of yours that nobody has touched for 10 days.</source>
        <translation>Eine Ihrer temporären Dateien, seit 10 Tagen unberührt.</translation>
    </message>
    <message>
        <source>A temporary file of yours that nobody has touched for 30 days.</source>
        <translation>Eine Ihrer temporären Dateien, seit 30 Tagen unberührt.</translation>
    </message>
    <message>
        <source>A tool version that a project may ask for.</source>
        <translation>Eine Werkzeugversion, die ein Projekt verlangen kann.</translation>
    </message>
    <message>
        <source>APP</source>
        <translation>APP</translation>
    </message>
    <message>
        <source>All that is used on this disk, by what it is. %1 of it can go.</source>
        <translation>Alles, was auf diesem Datenträger belegt ist, nach Art. %1 davon können weg.</translation>
    </message>
    <message>
        <source>An IDE version older than the newest of its kind; its Local History goes with it.</source>
        <translation>Eine ältere IDE-Version; ihre lokale Historie geht mit verloren.</translation>
    </message>
    <message>
        <source>An NDK version that projects may ask for.</source>
        <translation>Eine NDK-Version, die Projekte verlangen können.</translation>
    </message>
    <message>
        <source>An SDK level that projects may ask for.</source>
        <translation>Eine SDK-Stufe, die Projekte verlangen können.</translation>
    </message>
    <message>
        <source>An earlier revision of a snap, kept for going back to it.</source>
        <translation>Eine frühere Revision eines Snaps, aufgehoben zum Zurückkehren.</translation>
    </message>
    <message>
        <source>An emulator image; emulators that use it stop starting.</source>
        <translation>Ein Emulator-Abbild; Emulatoren, die es nutzen, starten nicht mehr.</translation>
    </message>
    <message>
        <source>An emulator with everything installed and stored in it.</source>
        <translation>Ein Emulator mit allem, was darin installiert und gespeichert ist.</translation>
    </message>
    <message>
        <source>An old IDE that Toolbox keeps for rolling back.</source>
        <translation>Eine alte IDE, die Toolbox zum Zurückkehren aufhebt.</translation>
    </message>
    <message>
        <source>An older version of an AppImage beside a newer one of the same name.</source>
        <translation>Eine ältere Version eines AppImage neben einer neueren gleichen Namens.</translation>
    </message>
    <message>
        <source>Anaconda</source>
        <translation>Anaconda</translation>
    </message>
    <message>
        <source>Android AVD &amp; Config</source>
        <translation>Android AVD &amp; Config</translation>
    </message>
    <message>
        <source>Android NDK *</source>
        <translation>Android NDK *</translation>
    </message>
    <message>
        <source>Android SDK</source>
        <translation>Android SDK</translation>
    </message>
    <message>
        <source>Android SDK Core</source>
        <translation>Android SDK Core</translation>
    </message>
    <message>
        <source>Android builds</source>
        <translation>Android-Builds</translation>
    </message>
    <message>
        <source>Android emulator *</source>
        <translation>Android-Emulator *</translation>
    </message>
    <message>
        <source>Android emulators</source>
        <translation>Android-Emulatoren</translation>
    </message>
    <message>
        <source>Android image *</source>
        <translation>Android-Abbild *</translation>
    </message>
    <message>
        <source>Android platform *</source>
        <translation>Android-Plattform *</translation>
    </message>
    <message>
        <source>Android tools</source>
        <translation>Android-Werkzeuge</translation>
    </message>
    <message>
        <source>Another volume is mounted inside of it, so that it cannot be removed.</source>
        <translation>Darin ist ein anderer Datenträger eingehängt, darum kann es nicht entfernt werden.</translation>
    </message>
    <message>
        <source>App Caches</source>
        <translation>App-Caches</translation>
    </message>
    <message>
        <source>App Data</source>
        <translation>App-Daten</translation>
    </message>
    <message>
        <source>App Support</source>
        <translation>App-Daten</translation>
    </message>
    <message>
        <source>App caches, old iPhone backups, browser leftovers, logs and the residue apps leave behind when you drag them to the Trash.</source>
        <translation>App-Caches, alte iPhone-Backups, Browser-Reste, Protokolle und was Apps hinterlassen, wenn Sie sie in den Papierkorb ziehen.</translation>
    </message>
    <message>
        <source>App caches, package downloads, browser leftovers, logs and the residue apps leave behind when you delete them.</source>
        <translation>App-Caches, Paket-Downloads, Browser-Reste, Protokolle und was Apps hinterlassen, wenn Sie sie löschen.</translation>
    </message>
    <message>
        <source>App containers</source>
        <translation>App-Container</translation>
    </message>
    <message>
        <source>App data</source>
        <translation>App-Daten</translation>
    </message>
    <message>
        <source>App preferences and configuration files. Do not delete — may reset app settings.</source>
        <translation>Einstellungen und Konfiguration von Apps. Nicht löschen – Apps könnten zurückgesetzt werden.</translation>
    </message>
    <message>
        <source>App support</source>
        <translation>App-Daten</translation>
    </message>
    <message>
        <source>Application Support</source>
        <translation>App-Daten</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Programme</translation>
    </message>
    <message>
        <source>Apps that Flatpak and snap have installed, and downloads of package managers. Uninstall what you no longer use.</source>
        <translation>Von Flatpak und Snap installierte Apps und Downloads von Paketverwaltungen. Deinstallieren Sie, was Sie nicht mehr nutzen.</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>Archiv</translation>
    </message>
    <message>
        <source>Archives of versions that are already unpacked.</source>
        <translation>Archive von Versionen, die schon entpackt sind.</translation>
    </message>
    <message>
        <source>Arduino tools</source>
        <translation>Arduino-Werkzeuge</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Audio Libraries</source>
        <translation>Audio-Bibliotheken</translation>
    </message>
    <message>
        <source>BROWSERS</source>
        <translation>BROWSER</translation>
    </message>
    <message>
        <source>BUNDLE</source>
        <translation>BUNDLE</translation>
    </message>
    <message>
        <source>Bazel</source>
        <translation>Bazel</translation>
    </message>
    <message>
        <source>Bazelisk</source>
        <translation>Bazelisk</translation>
    </message>
    <message>
        <source>Bazelisk downloads what it needs again.</source>
        <translation>Bazelisk lädt Benötigtes erneut.</translation>
    </message>
    <message>
        <source>Boxes</source>
        <translation>Boxes</translation>
    </message>
    <message>
        <source>Brave</source>
        <translation>Brave</translation>
    </message>
    <message>
        <source>Brave (Flatpak)</source>
        <translation>Brave (Flatpak)</translation>
    </message>
    <message>
        <source>Brave (snap)</source>
        <translation>Brave (snap)</translation>
    </message>
    <message>
        <source>Browser Cache</source>
        <translation>Cache</translation>
    </message>
    <message>
        <source>Browser Caches</source>
        <translation>Browser-Caches</translation>
    </message>
    <message>
        <source>Browser Cookies</source>
        <translation>Cookies</translation>
    </message>
    <message>
        <source>Browser History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Browser cookies and web storage. Deleting may log you out of websites.</source>
        <translation>Cookies und Webspeicher von Browsern. Löschen kann Sie von Websites abmelden.</translation>
    </message>
    <message>
        <source>Buck</source>
        <translation>Buck</translation>
    </message>
    <message>
        <source>Buck downloads what it needs again.</source>
        <translation>Buck lädt Benötigtes erneut.</translation>
    </message>
    <message>
        <source>Build Artifacts</source>
        <translation>Build-Ergebnisse</translation>
    </message>
    <message>
        <source>Build artifacts</source>
        <translation>Build-Ergebnisse</translation>
    </message>
    <message>
        <source>Build artifacts &amp; derived data. Regenerated automatically.</source>
        <translation>Build-Ergebnisse und abgeleitete Daten. Sie entstehen von selbst neu.</translation>
    </message>
    <message>
        <source>Bun</source>
        <translation>Bun</translation>
    </message>
    <message>
        <source>Bun downloads what it needs again.</source>
        <translation>Bun lädt Benötigtes erneut.</translation>
    </message>
    <message>
        <source>Bundler</source>
        <translation>Bundler</translation>
    </message>
    <message>
        <source>Bundler downloads what it needs again.</source>
        <translation>Bundler lädt Benötigtes erneut.</translation>
    </message>
    <message>
        <source>Cabal</source>
        <translation>Cabal</translation>
    </message>
    <message>
        <source>Cabal (old place)</source>
        <translation>Cabal (alter Ort)</translation>
    </message>
    <message>
        <source>Cabal downloads what it needs again.</source>
        <translation>Cabal lädt Benötigtes erneut.</translation>
    </message>
    <message>
        <source>Cache of *</source>
        <translation>Cache von *</translation>
    </message>
    <message>
        <source>Cached package downloads. Run &apos;brew cleanup&apos; to free this space.</source>
        <translation>Paket-Downloads. „brew cleanup“ gibt den Platz frei.</translation>
    </message>
    <message>
        <source>Cached packages from npm, yarn, pip, CocoaPods, Gradle, etc. Safe to delete — will re-download when needed.</source>
        <translation>Pakete von npm, yarn, pip, CocoaPods, Gradle usw. Sicher löschbar – sie werden bei Bedarf erneut geladen.</translation>
    </message>
    <message>
        <source>Cached web data from browsers.</source>
        <translation>Zwischengespeicherte Webdaten von Browsern.</translation>
    </message>
    <message>
        <source>Caches</source>
        <translation>Caches</translation>
    </message>
    <message>
        <source>Can be fetched or made again, which may take long. Remove it in the tool that put it there.</source>
        <translation>Lässt sich neu laden oder erstellen, was lange dauern kann. Entfernen Sie es mit dem Werkzeug, von dem es stammt.</translation>
    </message>
    <message>
        <source>Cannot be read</source>
        <translation>Nicht lesbar</translation>
    </message>
    <message>
        <source>Cargo Git checkouts</source>
        <translation>Git-Checkouts von Cargo</translation>
    </message>
    <message>
        <source>Cargo downloads what it needs again.</source>
        <translation>Cargo lädt Benötigtes erneut.</translation>
    </message>
    <message>
        <source>Cargo registry</source>
        <translation>Cargo-Registry</translation>
    </message>
    <message>
        <source>Cargo/Rust Cache</source>
        <translation>Cargo-/Rust-Cache</translation>
    </message>
    <message>
        <source>Checking Preferences, Caches, Application Support, Containers and Logs.</source>
        <translation>Prüft Einstellungen, Caches, App-Daten, Container und Protokolle.</translation>
    </message>
    <message>
        <source>Checking settings, caches, app data and states in your home.</source>
        <translation>Prüft Einstellungen, Caches, App-Daten und Zustände in Ihrem persönlichen Ordner.</translation>
    </message>
    <message>
        <source>Chromium</source>
        <translation>Chromium</translation>
    </message>
    <message>
        <source>Chromium (Flatpak)</source>
        <translation>Chromium (Flatpak)</translation>
    </message>
    <message>
        <source>Chromium (snap)</source>
        <translation>Chromium (snap)</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>Zwischenablage</translation>
    </message>
    <message>
        <source>Cloud Folders</source>
        <translation>Cloud-Ordner</translation>
    </message>
    <message>
        <source>CocoaPods Cache</source>
        <translation>CocoaPods-Cache</translation>
    </message>
    <message>
        <source>Command Line Tools</source>
        <translation>Befehlszeilenwerkzeuge</translation>
    </message>
    <message>
        <source>Compilers, SDKs, virtual devices and package stores. Fetching them again may take long.</source>
        <translation>Compiler, SDKs, virtuelle Geräte und Paketspeicher. Sie neu zu laden kann lange dauern.</translation>
    </message>
    <message>
        <source>Compilers, models and package stores. Fetching them again may take long.</source>
        <translation>Compiler, Modelle und Paketspeicher. Sie neu zu laden kann lange dauern.</translation>
    </message>
    <message>
        <source>Composer</source>
        <translation>Composer</translation>
    </message>
    <message>
        <source>Composer (old place)</source>
        <translation>Composer (alter Ort)</translation>
    </message>
    <message>
        <source>Composer downloads what it needs again.</source>
        <translation>Composer lädt Benötigtes erneut.</translation>
    </message>
    <message>
        <source>Conan 1 packages</source>
        <translation>Conan-1-Pakete</translation>
    </message>
    <message>
        <source>Conan downloads packages again; recipes you exported yourself are gone.</source>
        <translation>Conan lädt Pakete erneut; selbst exportierte Rezepte sind weg.</translation>
    </message>
    <message>
        <source>Conan packages</source>
        <translation>Conan-Pakete</translation>
    </message>
    <message>
        <source>Conda</source>
        <translation>Conda</translation>
    </message>
    <message>
        <source>Containers</source>
        <translation>Container</translation>
    </message>
    <message>
        <source>Containers &amp; Machines</source>
        <translation>Container &amp; Maschinen</translation>
    </message>
    <message>
        <source>Containers &amp; machines</source>
        <translation>Container &amp; Maschinen</translation>
    </message>
    <message>
        <source>Containers or virtual machines. Remove those you no longer need in the program itself.</source>
        <translation>Container oder virtuelle Maschinen. Entfernen Sie nicht mehr Benötigtes im Programm selbst.</translation>
    </message>
    <message>
        <source>Cookies</source>
        <translation>Cookies</translation>
    </message>
    <message>
        <source>Cookies &amp; Web Storage</source>
        <translation>Cookies &amp; Webspeicher</translation>
    </message>
    <message>
        <source>Copies of what Nextcloud, Dropbox and others keep on a server. What is removed here may go from the server as well.</source>
        <translation>Kopien dessen, was Nextcloud, Dropbox und andere auf einem Server führen. Was hier entfernt wird, kann auch dort verschwinden.</translation>
    </message>
    <message>
        <source>Copies that a program keeps to be quicker. It makes them again.</source>
        <translation>Kopien, mit denen ein Programm schneller ist. Es legt sie neu an.</translation>
    </message>
    <message>
        <source>Copies that apps keep to be quicker. They make them again.</source>
        <translation>Kopien, mit denen Apps schneller sind. Sie legen sie neu an.</translation>
    </message>
    <message>
        <source>Copies that the app keeps to be quicker. It makes them again.</source>
        <translation>Kopien, mit denen die App schneller ist. Sie legt sie neu an.</translation>
    </message>
    <message>
        <source>Core dumps</source>
        <translation>Speicherabbilder</translation>
    </message>
    <message>
        <source>Coursier</source>
        <translation>Coursier</translation>
    </message>
    <message>
        <source>Coursier downloads what it needs again.</source>
        <translation>Coursier lädt Benötigtes erneut.</translation>
    </message>
    <message>
        <source>Crash Reports</source>
        <translation>Absturzberichte</translation>
    </message>
    <message>
        <source>Crash report *</source>
        <translation>Absturzbericht *</translation>
    </message>
    <message>
        <source>Crash reports</source>
        <translation>Absturzberichte</translation>
    </message>
    <message>
        <source>Crash reports and diagnostic logs. Safe to delete.</source>
        <translation>Absturzberichte und Diagnoseprotokolle. Sicher löschbar.</translation>
    </message>
    <message>
        <source>Crash reports of *</source>
        <translation>Absturzberichte von *</translation>
    </message>
    <message>
        <source>Cursor</source>
        <translation>Cursor</translation>
    </message>
    <message>
        <source>Cypress</source>
        <translation>Cypress</translation>
    </message>
    <message>
        <source>Dart downloads what it needs again.</source>
        <translation>Dart lädt Benötigtes erneut.</translation>
    </message>
    <message>
        <source>Dart packages</source>
        <translation>Dart-Pakete</translation>
    </message>
    <message>
        <source>Dart packages from Git</source>
        <translation>Dart-Pakete aus Git</translation>
    </message>
    <message>
        <source>Dart/Flutter Pub Cache</source>
        <translation>Dart-/Flutter-Pub-Cache</translation>
    </message>
    <message>
        <source>Data of a Flatpak application that is not installed any more.</source>
        <translation>Daten einer Flatpak-App, die nicht mehr installiert ist.</translation>
    </message>
    <message>
        <source>Data of a revision of a snap that is not installed any more.</source>
        <translation>Daten einer Snap-Revision, die nicht mehr installiert ist.</translation>
    </message>
    <message>
        <source>Data of a snap that is not installed any more.</source>
        <translation>Daten eines Snaps, der nicht mehr installiert ist.</translation>
    </message>
    <message>
        <source>Data shared between an app and its extensions. WhatsApp and Telegram keep their message history here, so emptying a folder signs you out and loses the chats. Clear media from inside each app.</source>
        <translation>Daten, die sich eine App mit ihren Erweiterungen teilt. WhatsApp und Telegram führen hier ihre Nachrichten; einen Ordner zu leeren meldet Sie ab und löscht die Chats. Löschen Sie Medien in der jeweiligen App.</translation>
    </message>
    <message>
        <source>Deleted but Still Open</source>
        <translation>Gelöscht, aber noch offen</translation>
    </message>
    <message>
        <source>Deno</source>
        <translation>Deno</translation>
    </message>
    <message>
        <source>Deno downloads what it needs again.</source>
        <translation>Deno lädt Benötigtes erneut.</translation>
    </message>
    <message>
        <source>Design</source>
        <translation>Design</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Schreibtisch</translation>
    </message>
    <message>
        <source>Developer</source>
        <translation>Entwicklung</translation>
    </message>
    <message>
        <source>Developer Tools</source>
        <translation>Entwicklerwerkzeuge</translation>
    </message>
    <message>
        <source>Developer tools</source>
        <translation>Entwicklerwerkzeuge</translation>
    </message>
    <message>
        <source>Device backups, Mail downloads, Homebrew and other caches</source>
        <translation>Geräte-Backups, Mail-Downloads, Homebrew und andere Caches</translation>
    </message>
    <message>
        <source>Diagnostic Reports</source>
        <translation>Diagnoseberichte</translation>
    </message>
    <message>
        <source>Discord</source>
        <translation>Discord</translation>
    </message>
    <message>
        <source>Disk image</source>
        <translation>Abbild</translation>
    </message>
    <message>
        <source>Docker</source>
        <translation>Docker</translation>
    </message>
    <message>
        <source>Docker Desktop</source>
        <translation>Docker Desktop</translation>
    </message>
    <message>
        <source>Docker build cache</source>
        <translation>Build-Cache von Docker</translation>
    </message>
    <message>
        <source>Docker images without a name</source>
        <translation>Docker-Abbilder ohne Namen</translation>
    </message>
    <message>
        <source>Docker without root</source>
        <translation>Docker ohne root</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Dokument</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Dokumente</translation>
    </message>
    <message>
        <source>Documents and settings of Flatpak apps, a folder for each. Removing one resets its app.</source>
        <translation>Dokumente und Einstellungen von Flatpak-Apps, je ein Ordner. Ihn zu entfernen setzt die App zurück.</translation>
    </message>
    <message>
        <source>Documents and settings of one Flatpak app. Clear it from inside the app.</source>
        <translation>Dokumente und Einstellungen einer Flatpak-App. Räumen Sie in der App selbst auf.</translation>
    </message>
    <message>
        <source>Documents and settings of one snap app. Clear it from inside the app.</source>
        <translation>Dokumente und Einstellungen einer Snap-App. Räumen Sie in der App selbst auf.</translation>
    </message>
    <message>
        <source>Documents and settings of snap apps, a folder for each. Removing one resets its app.</source>
        <translation>Dokumente und Einstellungen von Snap-Apps, je ein Ordner. Ihn zu entfernen setzt die App zurück.</translation>
    </message>
    <message>
        <source>Downloaded packages and lists; dnf downloads them again.</source>
        <translation>Geladene Pakete und Listen; dnf lädt sie erneut.</translation>
    </message>
    <message>
        <source>Downloaded packages. They are fetched again when a build needs them.</source>
        <translation>Geladene Pakete. Ein Build holt sie bei Bedarf erneut.</translation>
    </message>
    <message>
        <source>Downloaded packages; zypper downloads them again.</source>
        <translation>Geladene Pakete; zypper lädt sie erneut.</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>Downloads</translation>
    </message>
    <message>
        <source>Downloads List</source>
        <translation>Download-Liste</translation>
    </message>
    <message>
        <source>Downloads of Homebrew, and what it has installed. Run &apos;brew cleanup&apos; to free space.</source>
        <translation>Downloads von Homebrew und was es installiert hat. „brew cleanup“ schafft Platz.</translation>
    </message>
    <message>
        <source>Downloads of PackageKit</source>
        <translation>Downloads von PackageKit</translation>
    </message>
    <message>
        <source>Downloads of apt</source>
        <translation>Downloads von apt</translation>
    </message>
    <message>
        <source>Downloads of dnf</source>
        <translation>Downloads von dnf</translation>
    </message>
    <message>
        <source>Downloads of npm, pip, Cargo, Gradle and other package managers. They are fetched again when needed.</source>
        <translation>Downloads von npm, pip, Cargo, Gradle und anderen Paketverwaltungen. Sie werden bei Bedarf erneut geladen.</translation>
    </message>
    <message>
        <source>Downloads of package managers and compilers. They are fetched again when needed.</source>
        <translation>Downloads von Paketverwaltungen und Compilern. Sie werden bei Bedarf erneut geladen.</translation>
    </message>
    <message>
        <source>Downloads of pacman</source>
        <translation>Downloads von pacman</translation>
    </message>
    <message>
        <source>Downloads of snapd; mostly the same files as the installed snaps, so little comes back.</source>
        <translation>Downloads von snapd; meist dieselben Dateien wie die installierten Snaps, darum wird wenig frei.</translation>
    </message>
    <message>
        <source>Downloads of zypper</source>
        <translation>Downloads von zypper</translation>
    </message>
    <message>
        <source>Downloads that Homebrew keeps. &apos;brew cleanup&apos; removes the old ones.</source>
        <translation>Downloads, die Homebrew aufhebt. „brew cleanup“ entfernt die alten.</translation>
    </message>
    <message>
        <source>Dropbox</source>
        <translation>Dropbox</translation>
    </message>
    <message>
        <source>Each service shortens its own. Change how much is kept in its settings.</source>
        <translation>Jeder Dienst kürzt die eigenen. Wie viel bleibt, steht in seinen Einstellungen.</translation>
    </message>
    <message>
        <source>Each takes too little to be worth a row.</source>
        <translation>Jedes ist zu klein für eine eigene Zeile.</translation>
    </message>
    <message>
        <source>Earlier states of the disk, kept by Timeshift, Snapper or the file system itself. The tool that made them has to remove them.</source>
        <translation>Frühere Stände des Datenträgers von Timeshift, Snapper oder dem Dateisystem selbst. Entfernen muss sie das Werkzeug, das sie angelegt hat.</translation>
    </message>
    <message>
        <source>Earlier states of the disk. &apos;snapper delete&apos; removes old ones.</source>
        <translation>Frühere Stände des Datenträgers. „snapper delete“ entfernt alte.</translation>
    </message>
    <message>
        <source>Earlier states of the disk. Remove old ones in Timeshift.</source>
        <translation>Frühere Stände des Datenträgers. Entfernen Sie alte in Timeshift.</translation>
    </message>
    <message>
        <source>Earlier states of the homes. &apos;snapper delete&apos; removes old ones.</source>
        <translation>Frühere Stände der persönlichen Ordner. „snapper delete“ entfernt alte.</translation>
    </message>
    <message>
        <source>Earlier versions and installers of what is installed already.</source>
        <translation>Frühere Versionen und Installationsdateien von bereits Installiertem.</translation>
    </message>
    <message>
        <source>Element</source>
        <translation>Element</translation>
    </message>
    <message>
        <source>Elsewhere on the Disk</source>
        <translation>Anderswo auf dem Datenträger</translation>
    </message>
    <message>
        <source>Email data and attachments. Manage in Mail.app by deleting old emails.</source>
        <translation>E-Mails und Anhänge. Löschen Sie alte E-Mails in Mail.</translation>
    </message>
    <message>
        <source>Environments hard-link into it; conda clean removes only what nothing uses.</source>
        <translation>Umgebungen verweisen darauf; „conda clean“ entfernt nur Ungenutztes.</translation>
    </message>
    <message>
        <source>Environments hard-link into it; micromamba clean removes only what nothing uses.</source>
        <translation>Umgebungen verweisen darauf; „micromamba clean“ entfernt nur Ungenutztes.</translation>
    </message>
    <message>
        <source>Evolution</source>
        <translation>Evolution</translation>
    </message>
    <message>
        <source>Falkon</source>
        <translation>Falkon</translation>
    </message>
    <message>
        <source>Files that are deleted and that a program still has open. Their space comes back when the program is closed or started anew.</source>
        <translation>Gelöschte Dateien, die ein Programm noch offen hat. Der Platz wird frei, wenn es geschlossen oder neu gestartet wird.</translation>
    </message>
    <message>
        <source>Files waiting in Trash.</source>
        <translation>Dateien im Papierkorb.</translation>
    </message>
    <message>
        <source>Firefox</source>
        <translation>Firefox</translation>
    </message>
    <message>
        <source>Firefox (*)</source>
        <translation>Firefox (*)</translation>
    </message>
    <message>
        <source>Firefox (Flatpak)</source>
        <translation>Firefox (Flatpak)</translation>
    </message>
    <message>
        <source>Firefox (snap)</source>
        <translation>Firefox (snap)</translation>
    </message>
    <message>
        <source>Firefox crash reports</source>
        <translation>Absturzberichte von Firefox</translation>
    </message>
    <message>
        <source>Firmware Files</source>
        <translation>Firmware-Dateien</translation>
    </message>
    <message>
        <source>Firmware of devices</source>
        <translation>Firmware von Geräten</translation>
    </message>
    <message>
        <source>Firmware updates</source>
        <translation>Firmware-Updates</translation>
    </message>
    <message>
        <source>Flatpak &amp; Snap</source>
        <translation>Flatpak &amp; Snap</translation>
    </message>
    <message>
        <source>Flatpak Data</source>
        <translation>Flatpak-Daten</translation>
    </message>
    <message>
        <source>Flatpak apps and runtimes</source>
        <translation>Flatpak-Apps und -Laufzeiten</translation>
    </message>
    <message>
        <source>Flatpak apps of yours</source>
        <translation>Ihre Flatpak-Apps</translation>
    </message>
    <message>
        <source>Folders outside of all homes that are no part of the system. Whoever made them knows whether they are still needed.</source>
        <translation>Ordner außerhalb aller persönlichen Ordner, die nicht zum System gehören. Wer sie angelegt hat, weiß, ob sie noch nötig sind.</translation>
    </message>
    <message>
        <source>Free space that the file system keeps back for the system. It is not used, and no ordinary user can write to it, so it is not part of the sum. On a volume that holds only data, an administrator can lower it with &apos;tune2fs -m 1&apos;.</source>
        <translation>Freier Platz, den das Dateisystem für das System zurückhält. Er ist unbelegt, aber normale Benutzer können nicht darauf schreiben; darum zählt er nicht zur Summe. Auf einem reinen Datenträger für Daten kann ihn ein Administrator mit „tune2fs -m 1“ verringern.</translation>
    </message>
    <message>
        <source>GNOME Web</source>
        <translation>GNOME Web</translation>
    </message>
    <message>
        <source>GNOME&apos;s search</source>
        <translation>Suche von GNOME</translation>
    </message>
    <message>
        <source>Geary</source>
        <translation>Geary</translation>
    </message>
    <message>
        <source>Go Build Cache</source>
        <translation>Go-Build-Cache</translation>
    </message>
    <message>
        <source>Go Modules</source>
        <translation>Go-Module</translation>
    </message>
    <message>
        <source>Go build cache</source>
        <translation>Go-Build-Cache</translation>
    </message>
    <message>
        <source>Go downloads modules again; its folders are read-only, so Go itself must remove them.</source>
        <translation>Go lädt Module erneut; die Ordner sind schreibgeschützt, darum muss Go sie selbst entfernen.</translation>
    </message>
    <message>
        <source>Go modules</source>
        <translation>Go-Module</translation>
    </message>
    <message>
        <source>Godot imports the assets again.</source>
        <translation>Godot importiert die Assets erneut.</translation>
    </message>
    <message>
        <source>Google Chrome</source>
        <translation>Google Chrome</translation>
    </message>
    <message>
        <source>Google Chrome (Flatpak)</source>
        <translation>Google Chrome (Flatpak)</translation>
    </message>
    <message>
        <source>Google Chrome Beta</source>
        <translation>Google Chrome Beta</translation>
    </message>
    <message>
        <source>Google Chrome Dev</source>
        <translation>Google Chrome Dev</translation>
    </message>
    <message>
        <source>Gradle Cache</source>
        <translation>Gradle-Cache</translation>
    </message>
    <message>
        <source>Gradle caches</source>
        <translation>Gradle-Caches</translation>
    </message>
    <message>
        <source>Gradle daemon logs</source>
        <translation>Protokolle des Gradle-Daemons</translation>
    </message>
    <message>
        <source>Gradle distributions</source>
        <translation>Gradle-Distributionen</translation>
    </message>
    <message>
        <source>Gradle downloads and compiles what it needs again.</source>
        <translation>Gradle lädt und kompiliert Benötigtes neu.</translation>
    </message>
    <message>
        <source>Gradle downloads what it needs again.</source>
        <translation>Gradle lädt Benötigtes erneut.</translation>
    </message>
    <message>
        <source>Gradle makes its own notes of the project again.</source>
        <translation>Gradle legt seine Notizen zum Projekt neu an.</translation>
    </message>
    <message>
        <source>Group Containers</source>
        <translation>Gruppencontainer</translation>
    </message>
    <message>
        <source>Guix store</source>
        <translation>Guix-Speicher</translation>
    </message>
    <message>
        <source>HTTP Storage</source>
        <translation>HTTP-Speicher</translation>
    </message>
    <message>
        <source>Has deleted files open. Restart it to get the space back.</source>
        <translation>Hat gelöschte Dateien offen. Ein Neustart gibt den Platz frei.</translation>
    </message>
    <message>
        <source>Helm</source>
        <translation>Helm</translation>
    </message>
    <message>
        <source>Helm downloads what it needs again.</source>
        <translation>Helm lädt Benötigtes erneut.</translation>
    </message>
    <message>
        <source>Hibernation file</source>
        <translation>Datei für den Ruhezustand</translation>
    </message>
    <message>
        <source>Hidden files macOS counts as System Data — iOS firmware, VM swap, Mail attachments, Homebrew.</source>
        <translation>Verborgene Dateien, die macOS als Systemdaten zählt – iOS-Firmware, VM-Swap, Mail-Anhänge, Homebrew.</translation>
    </message>
    <message>
        <source>Hidden folders of your home that belong to no other kind. Look into each before you remove it.</source>
        <translation>Verborgene persönliche Ordner, die zu keiner anderen Art gehören. Sehen Sie in jeden hinein, bevor Sie ihn entfernen.</translation>
    </message>
    <message>
        <source>Holds the memory while the machine sleeps. Leave it alone.</source>
        <translation>Nimmt im Ruhezustand den Speicherinhalt auf. Nicht anrühren.</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Persönlicher Ordner</translation>
    </message>
    <message>
        <source>Homebrew</source>
        <translation>Homebrew</translation>
    </message>
    <message>
        <source>Homebrew Cache</source>
        <translation>Homebrew-Cache</translation>
    </message>
    <message>
        <source>Homebrew Cellar</source>
        <translation>Homebrew Cellar</translation>
    </message>
    <message>
        <source>Homebrew Installation</source>
        <translation>Homebrew-Installation</translation>
    </message>
    <message>
        <source>Homebrew downloads</source>
        <translation>Homebrew-Downloads</translation>
    </message>
    <message>
        <source>Homebrew downloads what it needs again.</source>
        <translation>Homebrew lädt Benötigtes erneut.</translation>
    </message>
    <message>
        <source>Homes of other users of this computer, as far as you may read them. Only their owners can tidy them.</source>
        <translation>Persönliche Ordner anderer Benutzer dieses Computers, soweit Sie sie lesen dürfen. Aufräumen können nur ihre Besitzer.</translation>
    </message>
    <message>
        <source>Icedove</source>
        <translation>Icedove</translation>
    </message>
    <message>
        <source>Images and disks of Docker, Podman, VirtualBox and others. Remove those you no longer need in the program that made them.</source>
        <translation>Abbilder und Festplatten von Docker, Podman, VirtualBox und anderen. Entfernen Sie nicht mehr Benötigtes in dem Programm, das sie angelegt hat.</translation>
    </message>
    <message>
        <source>Images that no name and no container refers to.</source>
        <translation>Abbilder, auf die kein Name und kein Container verweist.</translation>
    </message>
    <message>
        <source>In the browser: Ctrl+Shift+Del</source>
        <translation>Im Browser: Strg+Umschalt+Entf</translation>
    </message>
    <message>
        <source>Include developer caches (Xcode, npm, Docker)</source>
        <translation>Entwickler-Caches einbeziehen (Xcode, npm, Docker)</translation>
    </message>
    <message>
        <source>Include developer caches (builds, packages, containers)</source>
        <translation>Entwickler-Caches einbeziehen (Builds, Pakete, Container)</translation>
    </message>
    <message>
        <source>Indexes, logs and temporary files of an IDE version: it indexes the projects anew.</source>
        <translation>Indexe, Protokolle und temporäre Dateien einer IDE-Version: Sie indiziert Projekte neu.</translation>
    </message>
    <message>
        <source>Indexes, logs and temporary files of the IDE: it indexes the projects anew.</source>
        <translation>Indexe, Protokolle und temporäre Dateien der IDE: Sie indiziert Projekte neu.</translation>
    </message>
    <message>
        <source>Installed Packages</source>
        <translation>Installierte Pakete</translation>
    </message>
    <message>
        <source>Installed System</source>
        <translation>Installiertes System</translation>
    </message>
    <message>
        <source>Installed by a package manager, which removes what you no longer need.</source>
        <translation>Von einer Paketverwaltung installiert, die nicht mehr Benötigtes entfernt.</translation>
    </message>
    <message>
        <source>Installer</source>
        <translation>Installation</translation>
    </message>
    <message>
        <source>Installers that winetricks downloads again.</source>
        <translation>Installationsdateien, die winetricks erneut lädt.</translation>
    </message>
    <message>
        <source>Insync</source>
        <translation>Insync</translation>
    </message>
    <message>
        <source>It could not be moved to the Trash.</source>
        <translation>Es konnte nicht in den Papierkorb verschoben werden.</translation>
    </message>
    <message>
        <source>It really lies at %1, which Klarvik leaves alone.</source>
        <translation>Es liegt in Wahrheit unter %1, und das lässt Klarvik unberührt.</translation>
    </message>
    <message>
        <source>It was installed for all users of this computer, and not by a package manager that Klarvik asks.</source>
        <translation>Sie wurde für alle Benutzer dieses Computers installiert, und nicht von einer Paketverwaltung, die Klarvik fragt.</translation>
    </message>
    <message>
        <source>Its folder is one that somebody works in: it holds a Git repository.</source>
        <translation>In ihrem Ordner wird gearbeitet: Er enthält ein Git-Repository.</translation>
    </message>
    <message>
        <source>Ivy</source>
        <translation>Ivy</translation>
    </message>
    <message>
        <source>Ivy downloads what it needs again.</source>
        <translation>Ivy lädt Benötigtes erneut.</translation>
    </message>
    <message>
        <source>Journal of the system</source>
        <translation>Journal des Systems</translation>
    </message>
    <message>
        <source>KDE&apos;s search</source>
        <translation>Suche von KDE</translation>
    </message>
    <message>
        <source>KMail</source>
        <translation>KMail</translation>
    </message>
    <message>
        <source>Keep Klarvik in the menu bar</source>
        <translation>Klarvik in der Menüleiste behalten</translation>
    </message>
    <message>
        <source>Keep Klarvik in the system tray</source>
        <translation>Klarvik im Infobereich behalten</translation>
    </message>
    <message>
        <source>Kept by the updater of firmware. It looks after them itself.</source>
        <translation>Gehört der Firmware-Aktualisierung. Sie kümmert sich selbst darum.</translation>
    </message>
    <message>
        <source>Kept for the System</source>
        <translation>Reserviert für das System</translation>
    </message>
    <message>
        <source>Kernels</source>
        <translation>Kernel</translation>
    </message>
    <message>
        <source>Kernels &amp; Firmware</source>
        <translation>Kernel &amp; Firmware</translation>
    </message>
    <message>
        <source>Kernels, their modules and firmware. Older ones are removed by your package manager.</source>
        <translation>Kernel, ihre Module und Firmware. Ältere entfernt Ihre Paketverwaltung.</translation>
    </message>
    <message>
        <source>Klarvik cannot tell which folder is its own: its program is %1.</source>
        <translation>Klarvik kann nicht erkennen, welcher Ordner ihr gehört: Ihr Programm ist %1.</translation>
    </message>
    <message>
        <source>Klarvik does not know this folder. By convention a program can do without it.</source>
        <translation>Klarvik kennt diesen Ordner nicht. Üblicherweise kommt ein Programm ohne ihn aus.</translation>
    </message>
    <message>
        <source>Klarvik does not remove it.</source>
        <translation>Klarvik entfernt sie nicht.</translation>
    </message>
    <message>
        <source>Klarvik finds what file managers hide</source>
        <translation>Klarvik findet, was verborgen ist</translation>
    </message>
    <message>
        <source>Klarvik finds what the Finder hides</source>
        <translation>Findet, was der Finder verbirgt</translation>
    </message>
    <message>
        <source>LXC</source>
        <translation>LXC</translation>
    </message>
    <message>
        <source>LXD</source>
        <translation>LXD</translation>
    </message>
    <message>
        <source>Layers that speed up builds; the next build does them anew.</source>
        <translation>Schichten, die Builds beschleunigen; der nächste Build erstellt sie neu.</translation>
    </message>
    <message>
        <source>Leftovers</source>
        <translation>Reste</translation>
    </message>
    <message>
        <source>Libraries of the system</source>
        <translation>Bibliotheken des Systems</translation>
    </message>
    <message>
        <source>Library Logs</source>
        <translation>Library-Protokolle</translation>
    </message>
    <message>
        <source>LibreWolf</source>
        <translation>LibreWolf</translation>
    </message>
    <message>
        <source>LibreWolf (Flatpak)</source>
        <translation>LibreWolf (Flatpak)</translation>
    </message>
    <message>
        <source>Lima</source>
        <translation>Lima</translation>
    </message>
    <message>
        <source>List of packages</source>
        <translation>Paketliste</translation>
    </message>
    <message>
        <source>Lists of apt</source>
        <translation>Listen von apt</translation>
    </message>
    <message>
        <source>Local Time Machine snapshots</source>
        <translation>Lokale Time-Machine-Snapshots</translation>
    </message>
    <message>
        <source>Local Time Machine snapshots stored on this Mac.</source>
        <translation>Lokale Time-Machine-Snapshots auf diesem Mac.</translation>
    </message>
    <message>
        <source>Local snapshots kept for Time Machine. Safe to delete — your external backups remain intact.</source>
        <translation>Lokale Snapshots für Time Machine. Sicher löschbar – Ihre externen Backups bleiben erhalten.</translation>
    </message>
    <message>
        <source>Location Cache</source>
        <translation>Orts-Cache</translation>
    </message>
    <message>
        <source>Login screen log *</source>
        <translation>Protokoll des Anmeldebildschirms *</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Protokolle</translation>
    </message>
    <message>
        <source>Logs &amp; Crash Reports</source>
        <translation>Protokolle &amp; Absturzberichte</translation>
    </message>
    <message>
        <source>Logs of *</source>
        <translation>Protokolle von *</translation>
    </message>
    <message>
        <source>Logs of an application.</source>
        <translation>Protokolle einer App.</translation>
    </message>
    <message>
        <source>Logs of past npm runs.</source>
        <translation>Protokolle früherer npm-Läufe.</translation>
    </message>
    <message>
        <source>Logs of services</source>
        <translation>Protokolle von Diensten</translation>
    </message>
    <message>
        <source>Logs of sessions</source>
        <translation>Protokolle von Sitzungen</translation>
    </message>
    <message>
        <source>Logs of the Gradle daemon.</source>
        <translation>Protokolle des Gradle-Daemons.</translation>
    </message>
    <message>
        <source>Looking for deleted files...</source>
        <translation>Gelöschte Dateien werden gesucht …</translation>
    </message>
    <message>
        <source>Loose files at the top of your home.</source>
        <translation>Einzelne Dateien direkt in Ihrem persönlichen Ordner.</translation>
    </message>
    <message>
        <source>Loose files outside of all homes.</source>
        <translation>Einzelne Dateien außerhalb aller persönlichen Ordner.</translation>
    </message>
    <message>
        <source>MACOS RECENTS</source>
        <translation>ZULETZT BENUTZT</translation>
    </message>
    <message>
        <source>Macintosh HD</source>
        <translation>Macintosh HD</translation>
    </message>
    <message>
        <source>Mail</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <source>Mail Data</source>
        <translation>Mail-Daten</translation>
    </message>
    <message>
        <source>Mail Downloads</source>
        <translation>Mail-Downloads</translation>
    </message>
    <message>
        <source>Mail Storage</source>
        <translation>E-Mails</translation>
    </message>
    <message>
        <source>Mail folder</source>
        <translation>E-Mail-Ordner</translation>
    </message>
    <message>
        <source>Mail kept for reading without a network is in here; it is fetched again when there is one.</source>
        <translation>Enthält E-Mails zum Lesen ohne Netz; sie werden erneut geladen, sobald es eines gibt.</translation>
    </message>
    <message>
        <source>Mail kept for reading without a network may be in here.</source>
        <translation>Kann E-Mails zum Lesen ohne Netz enthalten.</translation>
    </message>
    <message>
        <source>Mail of this machine</source>
        <translation>E-Mails dieses Rechners</translation>
    </message>
    <message>
        <source>Maven Cache</source>
        <translation>Maven-Cache</translation>
    </message>
    <message>
        <source>Maven downloads again what comes from a server; what you installed from your own builds is gone.</source>
        <translation>Maven lädt erneut, was von einem Server kommt; selbst Gebautes ist weg.</translation>
    </message>
    <message>
        <source>Maven repository</source>
        <translation>Maven-Repository</translation>
    </message>
    <message>
        <source>Measuring every app in /Applications and ~/Applications.</source>
        <translation>Alle Apps in /Applications und ~/Applications werden gemessen.</translation>
    </message>
    <message>
        <source>Measuring the apps in the menu, and the AppImages in your home.</source>
        <translation>Die Apps im Menü und die AppImages in Ihrem persönlichen Ordner werden gemessen.</translation>
    </message>
    <message>
        <source>Memory of crashed programs</source>
        <translation>Speicher abgestürzter Programme</translation>
    </message>
    <message>
        <source>Memory of crashed programs; the system removes each after some days.</source>
        <translation>Speicher abgestürzter Programme; das System entfernt ihn nach einigen Tagen.</translation>
    </message>
    <message>
        <source>Menu entry *</source>
        <translation>Menüeintrag *</translation>
    </message>
    <message>
        <source>Messages and attachments of your mail programs. Remove mail in its program.</source>
        <translation>Nachrichten und Anhänge Ihrer E-Mail-Programme. Löschen Sie E-Mails im Programm selbst.</translation>
    </message>
    <message>
        <source>Messages of all services. &apos;journalctl --vacuum-size&apos; shortens it.</source>
        <translation>Meldungen aller Dienste. „journalctl --vacuum-size“ kürzt es.</translation>
    </message>
    <message>
        <source>Messages of the desktop. Of use only to whoever looks for a fault.</source>
        <translation>Meldungen der Arbeitsumgebung. Nur bei der Fehlersuche nützlich.</translation>
    </message>
    <message>
        <source>Microsoft Edge</source>
        <translation>Microsoft Edge</translation>
    </message>
    <message>
        <source>Microsoft Edge (Flatpak)</source>
        <translation>Microsoft Edge (Flatpak)</translation>
    </message>
    <message>
        <source>Microsoft Teams</source>
        <translation>Microsoft Teams</translation>
    </message>
    <message>
        <source>Miniconda</source>
        <translation>Miniconda</translation>
    </message>
    <message>
        <source>Model * (Hugging Face)</source>
        <translation>Modell * (Hugging Face)</translation>
    </message>
    <message>
        <source>Models of * (LM Studio)</source>
        <translation>Modelle von * (LM Studio)</translation>
    </message>
    <message>
        <source>Models of LM Studio.</source>
        <translation>Modelle von LM Studio.</translation>
    </message>
    <message>
        <source>Models of Ollama; ollama rm removes one by one.</source>
        <translation>Modelle von Ollama; „ollama rm“ entfernt sie einzeln.</translation>
    </message>
    <message>
        <source>Models; downloading them again may take hours.</source>
        <translation>Modelle; sie erneut zu laden kann Stunden dauern.</translation>
    </message>
    <message>
        <source>Modules of one kernel. Your package manager removes those of older kernels.</source>
        <translation>Module eines Kernels. Die von älteren Kerneln entfernt Ihre Paketverwaltung.</translation>
    </message>
    <message>
        <source>Movies</source>
        <translation>Filme</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Musik</translation>
    </message>
    <message>
        <source>Needed by devices of this machine. Leave it alone.</source>
        <translation>Geräte dieses Rechners brauchen sie. Nicht anrühren.</translation>
    </message>
    <message>
        <source>Needs Full Disk Access</source>
        <translation>Vollzugriff nötig</translation>
    </message>
    <message>
        <source>Neither the system&apos;s nor in a home. Whoever made it knows whether it is still needed.</source>
        <translation>Weder Teil des Systems noch eines persönlichen Ordners. Wer es angelegt hat, weiß, ob es noch nötig ist.</translation>
    </message>
    <message>
        <source>Nextcloud</source>
        <translation>Nextcloud</translation>
    </message>
    <message>
        <source>Nix store</source>
        <translation>Nix-Speicher</translation>
    </message>
    <message>
        <source>No app with an entry in the menu of this computer was found.</source>
        <translation>Es wurde keine App mit einem Eintrag im Menü dieses Computers gefunden.</translation>
    </message>
    <message>
        <source>No browsing or system trails were found.</source>
        <translation>Keine Spuren von Browsern oder System gefunden.</translation>
    </message>
    <message>
        <source>No trail that Klarvik clears was found.</source>
        <translation>Keine Spur gefunden, die Klarvik löscht.</translation>
    </message>
    <message>
        <source>Node * (fnm)</source>
        <translation>Node * (fnm)</translation>
    </message>
    <message>
        <source>Node * (nvm)</source>
        <translation>Node * (nvm)</translation>
    </message>
    <message>
        <source>Node versions (nvm)</source>
        <translation>Node-Versionen (nvm)</translation>
    </message>
    <message>
        <source>Not Readable for You</source>
        <translation>Für Sie nicht lesbar</translation>
    </message>
    <message>
        <source>Not analysed yet. Storage settings will not say what is in these folders. Klarvik will.</source>
        <translation>Noch nicht analysiert. Klarvik zeigt, was in diesen Ordnern liegt.</translation>
    </message>
    <message>
        <source>Not analysed yet. Your file manager will not say where the space of the disk went. Klarvik will.</source>
        <translation>Noch nicht analysiert. Klarvik zeigt, wo der Platz geblieben ist.</translation>
    </message>
    <message>
        <source>Nothing found in /Applications.</source>
        <translation>In /Applications wurde nichts gefunden.</translation>
    </message>
    <message>
        <source>Nothing leaves this computer. No account, no telemetry.</source>
        <translation>Nichts verlässt diesen Computer. Kein Konto, keine Telemetrie.</translation>
    </message>
    <message>
        <source>Nothing leaves your Mac. No account, no telemetry.</source>
        <translation>Nichts verlässt Ihren Mac. Kein Konto, keine Telemetrie.</translation>
    </message>
    <message>
        <source>NuGet</source>
        <translation>NuGet</translation>
    </message>
    <message>
        <source>NuGet Cache</source>
        <translation>NuGet-Cache</translation>
    </message>
    <message>
        <source>NuGet HTTP cache</source>
        <translation>NuGet-HTTP-Cache</translation>
    </message>
    <message>
        <source>NuGet downloads what it needs again.</source>
        <translation>NuGet lädt Benötigtes erneut.</translation>
    </message>
    <message>
        <source>NuGet v3 cache</source>
        <translation>NuGet-v3-Cache</translation>
    </message>
    <message>
        <source>Obsidian</source>
        <translation>Obsidian</translation>
    </message>
    <message>
        <source>Of use only to whoever looks for the fault.</source>
        <translation>Nur bei der Fehlersuche nützlich.</translation>
    </message>
    <message>
        <source>Offline sites of Brave (*)</source>
        <translation>Offline-Websites von Brave (*)</translation>
    </message>
    <message>
        <source>Offline sites of Chromium (*)</source>
        <translation>Offline-Websites von Chromium (*)</translation>
    </message>
    <message>
        <source>Offline sites of Google Chrome (*)</source>
        <translation>Offline-Websites von Google Chrome (*)</translation>
    </message>
    <message>
        <source>Offline sites of Microsoft Edge (*)</source>
        <translation>Offline-Websites von Microsoft Edge (*)</translation>
    </message>
    <message>
        <source>Offline sites of Opera (*)</source>
        <translation>Offline-Websites von Opera (*)</translation>
    </message>
    <message>
        <source>Offline sites of Vivaldi (*)</source>
        <translation>Offline-Websites von Vivaldi (*)</translation>
    </message>
    <message>
        <source>Old app archives. Keep recent ones for re-submission.</source>
        <translation>Alte App-Archive. Behalten Sie neuere zum erneuten Einreichen.</translation>
    </message>
    <message>
        <source>Old iOS/iPadOS simulator runtimes no longer in use.</source>
        <translation>Alte, ungenutzte Laufzeiten der iOS-/iPadOS-Simulatoren.</translation>
    </message>
    <message>
        <source>Ollama models</source>
        <translation>Ollama-Modelle</translation>
    </message>
    <message>
        <source>OneDrive</source>
        <translation>OneDrive</translation>
    </message>
    <message>
        <source>Open the Trash in Finder</source>
        <translation>Papierkorb im Finder öffnen</translation>
    </message>
    <message>
        <source>Open the Trash in your file manager</source>
        <translation>Papierkorb in der Dateiverwaltung öffnen</translation>
    </message>
    <message>
        <source>Open windows, positions and histories that apps keep from one start to the next.</source>
        <translation>Offene Fenster, Positionen und Verläufe, die sich Apps von Start zu Start merken.</translation>
    </message>
    <message>
        <source>Opera</source>
        <translation>Opera</translation>
    </message>
    <message>
        <source>Opera (Flatpak)</source>
        <translation>Opera (Flatpak)</translation>
    </message>
    <message>
        <source>Opera (snap)</source>
        <translation>Opera (snap)</translation>
    </message>
    <message>
        <source>Origin of downloads</source>
        <translation>Herkunft von Downloads</translation>
    </message>
    <message>
        <source>Other Hidden Folders</source>
        <translation>Andere verborgene Ordner</translation>
    </message>
    <message>
        <source>Other Library Data</source>
        <translation>Andere Library-Daten</translation>
    </message>
    <message>
        <source>Other Users</source>
        <translation>Andere Benutzer</translation>
    </message>
    <message>
        <source>Other data in your Library folder not covered by specific categories. Review individually.</source>
        <translation>Andere Daten in Ihrem Library-Ordner. Prüfen Sie sie einzeln.</translation>
    </message>
    <message>
        <source>Other data of services</source>
        <translation>Andere Daten von Diensten</translation>
    </message>
    <message>
        <source>Other files in your home</source>
        <translation>Andere persönliche Dateien</translation>
    </message>
    <message>
        <source>PDM</source>
        <translation>PDM</translation>
    </message>
    <message>
        <source>PDM downloads what it needs again.</source>
        <translation>PDM lädt Benötigtes erneut.</translation>
    </message>
    <message>
        <source>Package Caches</source>
        <translation>Paket-Caches</translation>
    </message>
    <message>
        <source>Package Manager Caches</source>
        <translation>Paketverwaltungs-Caches</translation>
    </message>
    <message>
        <source>Package downloads, crash reports and other caches</source>
        <translation>Paket-Downloads, Absturzberichte und andere Caches</translation>
    </message>
    <message>
        <source>Packages of earlier versions, with which an update can be undone; paccache keeps the newest.</source>
        <translation>Pakete früherer Versionen, mit denen sich ein Update rückgängig machen lässt; paccache behält die neuesten.</translation>
    </message>
    <message>
        <source>Packages that are installed already; apt downloads them again when needed.</source>
        <translation>Bereits installierte Pakete; apt lädt sie bei Bedarf erneut.</translation>
    </message>
    <message>
        <source>Packages that were downloaded to be installed. The package manager has a command to clean it.</source>
        <translation>Zum Installieren geladene Pakete. Die Paketverwaltung hat einen Befehl zum Aufräumen.</translation>
    </message>
    <message>
        <source>Pale Moon</source>
        <translation>Pale Moon</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Pictures and pages of the Steam client.</source>
        <translation>Bilder und Seiten des Steam-Clients.</translation>
    </message>
    <message>
        <source>Pipenv</source>
        <translation>Pipenv</translation>
    </message>
    <message>
        <source>Pipenv downloads what it needs again.</source>
        <translation>Pipenv lädt Benötigtes erneut.</translation>
    </message>
    <message>
        <source>Pipenv environment *</source>
        <translation>Pipenv-Umgebung *</translation>
    </message>
    <message>
        <source>PlatformIO</source>
        <translation>PlatformIO</translation>
    </message>
    <message>
        <source>PlatformIO downloads what it needs again.</source>
        <translation>PlatformIO lädt Benötigtes erneut.</translation>
    </message>
    <message>
        <source>Playwright browsers</source>
        <translation>Playwright-Browser</translation>
    </message>
    <message>
        <source>Podman</source>
        <translation>Podman</translation>
    </message>
    <message>
        <source>Podman images without a name</source>
        <translation>Podman-Abbilder ohne Namen</translation>
    </message>
    <message>
        <source>Podman of the system</source>
        <translation>Podman des Systems</translation>
    </message>
    <message>
        <source>Poetry</source>
        <translation>Poetry</translation>
    </message>
    <message>
        <source>Poetry artifacts</source>
        <translation>Poetry-Artefakte</translation>
    </message>
    <message>
        <source>Poetry downloads what it needs again.</source>
        <translation>Poetry lädt Benötigtes erneut.</translation>
    </message>
    <message>
        <source>Poetry environment *</source>
        <translation>Poetry-Umgebung *</translation>
    </message>
    <message>
        <source>Postman</source>
        <translation>Postman</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Preferences &amp; Config</source>
        <translation>Einstellungen &amp; Konfiguration</translation>
    </message>
    <message>
        <source>Programs installed by hand</source>
        <translation>Von Hand installierte Programme</translation>
    </message>
    <message>
        <source>Programs of the system</source>
        <translation>Programme des Systems</translation>
    </message>
    <message>
        <source>Projects hard-link into this store, so removing it may free little; pnpm store prune removes only what nothing uses.</source>
        <translation>Projekte verweisen auf diesen Speicher, darum wird womöglich wenig frei; „pnpm store prune“ entfernt nur Ungenutztes.</translation>
    </message>
    <message>
        <source>Puppeteer browsers</source>
        <translation>Puppeteer-Browser</translation>
    </message>
    <message>
        <source>PyTorch models</source>
        <translation>PyTorch-Modelle</translation>
    </message>
    <message>
        <source>Python * (pyenv)</source>
        <translation>Python * (pyenv)</translation>
    </message>
    <message>
        <source>Python * (uv)</source>
        <translation>Python * (uv)</translation>
    </message>
    <message>
        <source>Python tools make it again at the next run.</source>
        <translation>Python-Werkzeuge legen es beim nächsten Lauf neu an.</translation>
    </message>
    <message>
        <source>Python versions (pyenv)</source>
        <translation>Python-Versionen (pyenv)</translation>
    </message>
    <message>
        <source>Quarantine DB</source>
        <translation>Quarantäne-Datenbank</translation>
    </message>
    <message>
        <source>RECENT FILES</source>
        <translation>ZULETZT BENUTZTE DATEIEN</translation>
    </message>
    <message>
        <source>Reading /Applications…</source>
        <translation>/Applications wird gelesen …</translation>
    </message>
    <message>
        <source>Reading the installed apps…</source>
        <translation>Installierte Apps werden gelesen …</translation>
    </message>
    <message>
        <source>Reading the volume...</source>
        <translation>Datenträger wird gelesen …</translation>
    </message>
    <message>
        <source>Recent Apps</source>
        <translation>Zuletzt benutzte Apps</translation>
    </message>
    <message>
        <source>Recent Files</source>
        <translation>Zuletzt benutzte Dateien</translation>
    </message>
    <message>
        <source>Recoll</source>
        <translation>Recoll</translation>
    </message>
    <message>
        <source>Recoll&apos;s index of your files. It builds it anew.</source>
        <translation>Der Index von Recoll über Ihre Dateien. Er wird neu erstellt.</translation>
    </message>
    <message>
        <source>Records that the system and your apps write. They grow over time.</source>
        <translation>Aufzeichnungen des Systems und Ihrer Apps. Sie wachsen mit der Zeit.</translation>
    </message>
    <message>
        <source>Removing it would remove %1, which this computer needs.</source>
        <translation>Damit würde auch %1 entfernt, das dieser Computer braucht.</translation>
    </message>
    <message>
        <source>Reports of crashes that were sent or never will be.</source>
        <translation>Absturzberichte, die gesendet wurden oder nie gesendet werden.</translation>
    </message>
    <message>
        <source>Reports of crashes that were sent.</source>
        <translation>Absturzberichte, die gesendet wurden.</translation>
    </message>
    <message>
        <source>Rescan to see what this computer has recorded.</source>
        <translation>Ein Scan zeigt, was dieser Computer aufgezeichnet hat.</translation>
    </message>
    <message>
        <source>Rescan to see what your Mac has recorded.</source>
        <translation>Ein Scan zeigt, was Ihr Mac aufgezeichnet hat.</translation>
    </message>
    <message>
        <source>Review items are things you might want back — build results, toolchains, what removed apps left behind. What goes to the Trash can be restored until you empty it.

Turn this warning off in Settings → General.</source>
        <translation>Zu prüfende Objekte könnten Sie noch brauchen – Build-Ergebnisse, Werkzeuge, Reste entfernter Apps. Was in den Papierkorb kommt, lässt sich wiederherstellen, bis Sie ihn leeren.

Abschalten lässt sich diese Warnung unter „Einstellungen → Allgemein“.</translation>
    </message>
    <message>
        <source>Review items are things you might want back — iPhone backups, Xcode archives, local snapshots. Everything goes to the Trash, so it can be restored until you empty it.

Turn this warning off in Settings → General.</source>
        <translation>Zu prüfende Objekte könnten Sie noch brauchen – iPhone-Backups, Xcode-Archive, lokale Snapshots. Alles kommt in den Papierkorb und lässt sich wiederherstellen, bis Sie ihn leeren.

Abschalten lässt sich diese Warnung unter „Einstellungen → Allgemein“.</translation>
    </message>
    <message>
        <source>Rosetta 2 Cache</source>
        <translation>Rosetta-2-Cache</translation>
    </message>
    <message>
        <source>Ruby * (rbenv)</source>
        <translation>Ruby * (rbenv)</translation>
    </message>
    <message>
        <source>Ruby Gems</source>
        <translation>Ruby-Gems</translation>
    </message>
    <message>
        <source>Ruby versions (rbenv)</source>
        <translation>Ruby-Versionen (rbenv)</translation>
    </message>
    <message>
        <source>RubyGems (*)</source>
        <translation>RubyGems (*)</translation>
    </message>
    <message>
        <source>RubyGems downloads what it needs again.</source>
        <translation>RubyGems lädt Benötigtes erneut.</translation>
    </message>
    <message>
        <source>Runtimes that no installed application needs; some come back at the next update.</source>
        <translation>Laufzeiten, die keine installierte App braucht; manche kommen mit dem nächsten Update wieder.</translation>
    </message>
    <message>
        <source>Rust *</source>
        <translation>Rust *</translation>
    </message>
    <message>
        <source>Rust toolchains</source>
        <translation>Rust-Werkzeuge</translation>
    </message>
    <message>
        <source>Rustup Toolchains</source>
        <translation>Rustup-Werkzeuge</translation>
    </message>
    <message>
        <source>SAFARI, CHROME, FIREFOX</source>
        <translation>SAFARI, CHROME, FIREFOX</translation>
    </message>
    <message>
        <source>SDKMAN archive *</source>
        <translation>SDKMAN-Archiv *</translation>
    </message>
    <message>
        <source>SDKMAN tools</source>
        <translation>SDKMAN-Werkzeuge</translation>
    </message>
    <message>
        <source>Sandboxed app data. A Docker VM can be pruned from Docker; most other containers hold the app&apos;s own documents and settings.</source>
        <translation>Daten von Apps in ihrer Sandbox. Eine Docker-VM lässt sich in Docker verkleinern; die meisten anderen Container enthalten Dokumente und Einstellungen der App.</translation>
    </message>
    <message>
        <source>Saved App State</source>
        <translation>Gesicherte App-Zustände</translation>
    </message>
    <message>
        <source>Saved Application State</source>
        <translation>Gesicherte App-Zustände</translation>
    </message>
    <message>
        <source>Saved State</source>
        <translation>Gesicherter Zustand</translation>
    </message>
    <message>
        <source>Saved session</source>
        <translation>Gesicherte Sitzung</translation>
    </message>
    <message>
        <source>Saved sessions</source>
        <translation>Gesicherte Sitzungen</translation>
    </message>
    <message>
        <source>Scanning App Caches...</source>
        <translation>Scannen: App-Caches …</translation>
    </message>
    <message>
        <source>Scanning Application Support...</source>
        <translation>Scannen: App-Daten …</translation>
    </message>
    <message>
        <source>Scanning Containers...</source>
        <translation>Scannen: Container …</translation>
    </message>
    <message>
        <source>Scanning Cookies...</source>
        <translation>Scannen: Cookies …</translation>
    </message>
    <message>
        <source>Scanning Developer Tools...</source>
        <translation>Scannen: Entwicklerwerkzeuge …</translation>
    </message>
    <message>
        <source>Scanning Diagnostics...</source>
        <translation>Scannen: Diagnosedaten …</translation>
    </message>
    <message>
        <source>Scanning Firmware...</source>
        <translation>Scannen: Firmware …</translation>
    </message>
    <message>
        <source>Scanning Flatpak and snap...</source>
        <translation>Scannen: Flatpak und Snap …</translation>
    </message>
    <message>
        <source>Scanning Flatpak data...</source>
        <translation>Scannen: Flatpak-Daten …</translation>
    </message>
    <message>
        <source>Scanning Group Containers...</source>
        <translation>Scannen: Gruppencontainer …</translation>
    </message>
    <message>
        <source>Scanning Homebrew...</source>
        <translation>Scannen: Homebrew …</translation>
    </message>
    <message>
        <source>Scanning Logs...</source>
        <translation>Scannen: Protokolle …</translation>
    </message>
    <message>
        <source>Scanning Mail Storage...</source>
        <translation>Scannen: E-Mails …</translation>
    </message>
    <message>
        <source>Scanning Package Manager Caches...</source>
        <translation>Scannen: Paket-Caches …</translation>
    </message>
    <message>
        <source>Scanning Preferences...</source>
        <translation>Scannen: Einstellungen …</translation>
    </message>
    <message>
        <source>Scanning Saved State...</source>
        <translation>Scannen: gesicherte Zustände …</translation>
    </message>
    <message>
        <source>Scanning Spotlight...</source>
        <translation>Scannen: Spotlight …</translation>
    </message>
    <message>
        <source>Scanning System Databases...</source>
        <translation>Scannen: Datenbanken …</translation>
    </message>
    <message>
        <source>Scanning System Library...</source>
        <translation>Scannen: System-Library …</translation>
    </message>
    <message>
        <source>Scanning System Temp...</source>
        <translation>Scannen: temporäre Dateien …</translation>
    </message>
    <message>
        <source>Scanning Time Machine...</source>
        <translation>Scannen: Time Machine …</translation>
    </message>
    <message>
        <source>Scanning VM &amp; Swap...</source>
        <translation>Scannen: VM und Auslagerung …</translation>
    </message>
    <message>
        <source>Scanning app caches...</source>
        <translation>Scannen: App-Caches …</translation>
    </message>
    <message>
        <source>Scanning app data...</source>
        <translation>Scannen: App-Daten …</translation>
    </message>
    <message>
        <source>Scanning cloud folders...</source>
        <translation>Scannen: Cloud-Ordner …</translation>
    </message>
    <message>
        <source>Scanning containers and machines...</source>
        <translation>Scannen: Container und Maschinen …</translation>
    </message>
    <message>
        <source>Scanning crash reports...</source>
        <translation>Scannen: Absturzberichte …</translation>
    </message>
    <message>
        <source>Scanning developer tools...</source>
        <translation>Scannen: Entwicklerwerkzeuge …</translation>
    </message>
    <message>
        <source>Scanning iCloud Data...</source>
        <translation>Scannen: iCloud-Daten …</translation>
    </message>
    <message>
        <source>Scanning kernels and firmware...</source>
        <translation>Scannen: Kernel und Firmware …</translation>
    </message>
    <message>
        <source>Scanning logs...</source>
        <translation>Scannen: Protokolle …</translation>
    </message>
    <message>
        <source>Scanning mail...</source>
        <translation>Scannen: E-Mails …</translation>
    </message>
    <message>
        <source>Scanning other hidden folders...</source>
        <translation>Scannen: andere verborgene Ordner …</translation>
    </message>
    <message>
        <source>Scanning other users...</source>
        <translation>Scannen: andere Benutzer …</translation>
    </message>
    <message>
        <source>Scanning package caches...</source>
        <translation>Scannen: Paket-Caches …</translation>
    </message>
    <message>
        <source>Scanning quarantine db...</source>
        <translation>Scannen: Quarantäne-Datenbank …</translation>
    </message>
    <message>
        <source>Scanning remaining Library data...</source>
        <translation>Scannen: übrige Library-Daten …</translation>
    </message>
    <message>
        <source>Scanning saved state...</source>
        <translation>Scannen: gesicherte Zustände …</translation>
    </message>
    <message>
        <source>Scanning settings...</source>
        <translation>Scannen: Einstellungen …</translation>
    </message>
    <message>
        <source>Scanning shell history...</source>
        <translation>Scannen: Befehlsverlauf …</translation>
    </message>
    <message>
        <source>Scanning snap data...</source>
        <translation>Scannen: Snap-Daten …</translation>
    </message>
    <message>
        <source>Scanning snapshots...</source>
        <translation>Scannen: Snapshots …</translation>
    </message>
    <message>
        <source>Scanning swap files...</source>
        <translation>Scannen: Auslagerungsdateien …</translation>
    </message>
    <message>
        <source>Scanning system databases...</source>
        <translation>Scannen: Datenbanken …</translation>
    </message>
    <message>
        <source>Scanning temporary files...</source>
        <translation>Scannen: temporäre Dateien …</translation>
    </message>
    <message>
        <source>Scanning the installed system...</source>
        <translation>Scannen: das installierte System …</translation>
    </message>
    <message>
        <source>Scanning the rest of the disk...</source>
        <translation>Scannen: der Rest des Datenträgers …</translation>
    </message>
    <message>
        <source>Scanning the search index...</source>
        <translation>Scannen: Suchindex …</translation>
    </message>
    <message>
        <source>Scanning thumbnails...</source>
        <translation>Scannen: Vorschaubilder …</translation>
    </message>
    <message>
        <source>Scanning trash history...</source>
        <translation>Scannen: Papierkorbverlauf …</translation>
    </message>
    <message>
        <source>Scanning web storage...</source>
        <translation>Scannen: Webspeicher …</translation>
    </message>
    <message>
        <source>Scanning your files...</source>
        <translation>Scannen: Ihre Dateien …</translation>
    </message>
    <message>
        <source>Search Index</source>
        <translation>Suchindex</translation>
    </message>
    <message>
        <source>Search index built by Spotlight. Cannot be manually deleted — system-managed.</source>
        <translation>Suchindex von Spotlight. Nicht von Hand löschbar – das System verwaltet ihn.</translation>
    </message>
    <message>
        <source>Session log</source>
        <translation>Sitzungsprotokoll</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Settings of one app. Reset them in the app itself.</source>
        <translation>Einstellungen einer App. Setzen Sie sie in der App selbst zurück.</translation>
    </message>
    <message>
        <source>Settings of the system</source>
        <translation>Einstellungen des Systems</translation>
    </message>
    <message>
        <source>Settings of your apps. Removing them resets the apps.</source>
        <translation>Einstellungen Ihrer Apps. Sie zu entfernen setzt die Apps zurück.</translation>
    </message>
    <message>
        <source>Shaders of a game that is not installed any more.</source>
        <translation>Shader eines Spiels, das nicht mehr installiert ist.</translation>
    </message>
    <message>
        <source>Shaders of one game; Steam fetches or compiles them again, which may take long at the next start.</source>
        <translation>Shader eines Spiels; Steam lädt oder kompiliert sie neu, was beim nächsten Start dauern kann.</translation>
    </message>
    <message>
        <source>Shaders of one game; Steam fetches or compiles them again.</source>
        <translation>Shader eines Spiels; Steam lädt oder kompiliert sie neu.</translation>
    </message>
    <message>
        <source>Shell History</source>
        <translation>Befehlsverlauf</translation>
    </message>
    <message>
        <source>Show in File Manager</source>
        <translation>In der Dateiverwaltung zeigen</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Im Finder zeigen</translation>
    </message>
    <message>
        <source>Show in the menu bar</source>
        <translation>In der Menüleiste zeigen</translation>
    </message>
    <message>
        <source>Show in the system tray</source>
        <translation>Im Infobereich zeigen</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>Signal</translation>
    </message>
    <message>
        <source>Simulator Caches</source>
        <translation>Simulator-Caches</translation>
    </message>
    <message>
        <source>Simulator Images</source>
        <translation>Simulator-Abbilder</translation>
    </message>
    <message>
        <source>Slack</source>
        <translation>Slack</translation>
    </message>
    <message>
        <source>Small pictures of files; file managers draw them again.</source>
        <translation>Kleine Bilder von Dateien; Dateiverwaltungen zeichnen sie neu.</translation>
    </message>
    <message>
        <source>Smaller items</source>
        <translation>Kleinere Objekte</translation>
    </message>
    <message>
        <source>Snap Data</source>
        <translation>Snap-Daten</translation>
    </message>
    <message>
        <source>Snap apps</source>
        <translation>Snap-Apps</translation>
    </message>
    <message>
        <source>Snapper</source>
        <translation>Snapper</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>Snapshots</translation>
    </message>
    <message>
        <source>Snapshots, app data, toolchains</source>
        <translation>Snapshots, App-Daten, Werkzeuge</translation>
    </message>
    <message>
        <source>Some of it belongs to another user, so that it cannot be removed.</source>
        <translation>Ein Teil davon gehört einem anderen Benutzer, darum kann es nicht entfernt werden.</translation>
    </message>
    <message>
        <source>Some of its folders are read-only: the Trash could not be emptied of them again.</source>
        <translation>Einige Ordner darin sind schreibgeschützt: Der Papierkorb ließe sich nicht mehr leeren.</translation>
    </message>
    <message>
        <source>Songs kept for listening without a network are in here.</source>
        <translation>Enthält Musik zum Hören ohne Netz.</translation>
    </message>
    <message>
        <source>Sources or headers of a kernel. Your package manager removes those of older kernels.</source>
        <translation>Quelltexte eines Kernels. Die von älteren Kerneln entfernt Ihre Paketverwaltung.</translation>
    </message>
    <message>
        <source>Space for when memory runs short, and for hibernation. The system needs it.</source>
        <translation>Platz für knappen Arbeitsspeicher und den Ruhezustand. Das System braucht ihn.</translation>
    </message>
    <message>
        <source>Spotify</source>
        <translation>Spotify</translation>
    </message>
    <message>
        <source>Spotlight Index</source>
        <translation>Spotlight-Index</translation>
    </message>
    <message>
        <source>Steam pages</source>
        <translation>Seiten von Steam</translation>
    </message>
    <message>
        <source>Steam shaders of game *</source>
        <translation>Steam-Shader von Spiel *</translation>
    </message>
    <message>
        <source>Steam shaders of game * (Flatpak)</source>
        <translation>Steam-Shader von Spiel * (Flatpak)</translation>
    </message>
    <message>
        <source>Swap &amp; Hibernation</source>
        <translation>Auslagerung &amp; Ruhezustand</translation>
    </message>
    <message>
        <source>Swap file</source>
        <translation>Auslagerungsdatei</translation>
    </message>
    <message>
        <source>Swap, cloud folders, the installed system</source>
        <translation>Auslagerung, Cloud-Ordner, das installierte System</translation>
    </message>
    <message>
        <source>Swap, iCloud local copies, system frameworks</source>
        <translation>Auslagerung, lokale iCloud-Kopien, System-Frameworks</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>System App Support</source>
        <translation>App-Daten des Systems</translation>
    </message>
    <message>
        <source>System Caches</source>
        <translation>Caches des Systems</translation>
    </message>
    <message>
        <source>System Data, plus the Developer, Mail and app folders Storage settings files elsewhere and explains just as poorly. %1 of it can go.</source>
        <translation>Systemdaten und die Entwickler-, Mail- und App-Ordner, die die Speichereinstellungen anderswo führen und ebenso wenig erklären. %1 davon können weg.</translation>
    </message>
    <message>
        <source>System Databases</source>
        <translation>Datenbanken des Systems</translation>
    </message>
    <message>
        <source>System Diagnostic Reports</source>
        <translation>Diagnoseberichte des Systems</translation>
    </message>
    <message>
        <source>System Extensions</source>
        <translation>Systemerweiterungen</translation>
    </message>
    <message>
        <source>System Fonts</source>
        <translation>Systemschriften</translation>
    </message>
    <message>
        <source>System Frameworks</source>
        <translation>System-Frameworks</translation>
    </message>
    <message>
        <source>System Library Data</source>
        <translation>Library-Daten des Systems</translation>
    </message>
    <message>
        <source>System Logs</source>
        <translation>Systemprotokolle</translation>
    </message>
    <message>
        <source>System Preferences</source>
        <translation>Systemeinstellungen</translation>
    </message>
    <message>
        <source>System Simulator Data</source>
        <translation>Simulator-Daten des Systems</translation>
    </message>
    <message>
        <source>System Temp Files</source>
        <translation>Temporäre Dateien des Systems</translation>
    </message>
    <message>
        <source>System Temp Folders</source>
        <translation>Temporäre Ordner des Systems</translation>
    </message>
    <message>
        <source>System Tmp</source>
        <translation>Tmp des Systems</translation>
    </message>
    <message>
        <source>System and app log files. Safe to delete — they accumulate over time.</source>
        <translation>Protokolle von System und Apps. Sicher löschbar – sie sammeln sich an.</translation>
    </message>
    <message>
        <source>System databases (fseventsd, dyld, etc.). Cannot be deleted — essential for macOS.</source>
        <translation>Datenbanken des Systems (fseventsd, dyld usw.). Nicht löschbar – macOS braucht sie.</translation>
    </message>
    <message>
        <source>System journal</source>
        <translation>Systemjournal</translation>
    </message>
    <message>
        <source>System-level library data. Cannot be deleted — essential for macOS and installed apps.</source>
        <translation>Library-Daten des Systems. Nicht löschbar – macOS und Apps brauchen sie.</translation>
    </message>
    <message>
        <source>Tectonic</source>
        <translation>Tectonic</translation>
    </message>
    <message>
        <source>Tectonic downloads what it needs again.</source>
        <translation>Tectonic lädt Benötigtes erneut.</translation>
    </message>
    <message>
        <source>Temp Files</source>
        <translation>Temporäre Dateien</translation>
    </message>
    <message>
        <source>Temporary Files</source>
        <translation>Temporäre Dateien</translation>
    </message>
    <message>
        <source>Temporary cache files from all apps. Safe to delete — apps will regenerate them.</source>
        <translation>Temporäre Cache-Dateien aller Apps. Sicher löschbar – Apps legen sie neu an.</translation>
    </message>
    <message>
        <source>Temporary files created by apps. 100% safe to remove.</source>
        <translation>Von Apps angelegte temporäre Dateien. Zu 100 % sicher entfernbar.</translation>
    </message>
    <message>
        <source>Temporary files created by macOS and apps. Mostly auto-managed, some can be cleared.</source>
        <translation>Temporäre Dateien von macOS und Apps. Meist selbst verwaltet, manches kann weg.</translation>
    </message>
    <message>
        <source>Temporary files of Windows programs.</source>
        <translation>Temporäre Dateien von Windows-Programmen.</translation>
    </message>
    <message>
        <source>Temporary, but kept over restarts. The system removes it after some weeks.</source>
        <translation>Temporär, übersteht aber Neustarts. Das System entfernt es nach einigen Wochen.</translation>
    </message>
    <message>
        <source>Temporary. A restart of the machine removes it where nothing else does.</source>
        <translation>Temporär. Spätestens ein Neustart entfernt es.</translation>
    </message>
    <message>
        <source>Terraform</source>
        <translation>Terraform</translation>
    </message>
    <message>
        <source>Terraform downloads what it needs again.</source>
        <translation>Terraform lädt Benötigtes erneut.</translation>
    </message>
    <message>
        <source>The Android tools download what they need again.</source>
        <translation>Die Android-Werkzeuge laden Benötigtes erneut.</translation>
    </message>
    <message>
        <source>The IDE&apos;s file system cache: its Local History goes with it.</source>
        <translation>Der Dateisystem-Cache der IDE: Die lokale Historie geht mit verloren.</translation>
    </message>
    <message>
        <source>The IDE&apos;s file system cache: its Local History, the only undo of uncommitted work, goes with it.</source>
        <translation>Der Dateisystem-Cache der IDE: Die lokale Historie geht mit verloren, der einzige Weg zurück bei nicht eingecheckter Arbeit.</translation>
    </message>
    <message>
        <source>The administrator</source>
        <translation>Der Administrator</translation>
    </message>
    <message>
        <source>The administrator&apos;s home, as far as you may read it.</source>
        <translation>Der persönliche Ordner des Administrators, soweit Sie ihn lesen dürfen.</translation>
    </message>
    <message>
        <source>The browsers that tests run; the next test run fails until they are installed again.</source>
        <translation>Browser für Tests; der nächste Testlauf scheitert, bis sie wieder installiert sind.</translation>
    </message>
    <message>
        <source>The cache folder of one revision of a snap.</source>
        <translation>Der Cache-Ordner einer Snap-Revision.</translation>
    </message>
    <message>
        <source>The cache folder that Flatpak gives an application.</source>
        <translation>Der Cache-Ordner, den Flatpak einer App gibt.</translation>
    </message>
    <message>
        <source>The cache folder that snap gives an application.</source>
        <translation>Der Cache-Ordner, den Snap einer App gibt.</translation>
    </message>
    <message>
        <source>The desktop looks after it. &apos;balooctl purge&apos; builds it anew.</source>
        <translation>Die Arbeitsumgebung kümmert sich darum. „balooctl purge“ erstellt ihn neu.</translation>
    </message>
    <message>
        <source>The desktop looks after it. &apos;tracker3 reset -s&apos; builds it anew.</source>
        <translation>Die Arbeitsumgebung kümmert sich darum. „tracker3 reset -s“ erstellt ihn neu.</translation>
    </message>
    <message>
        <source>The environment of a project: it can be made again only if its requirements are written down.</source>
        <translation>Die Umgebung eines Projekts: Neu erstellen lässt sie sich nur, wenn ihre Anforderungen notiert sind.</translation>
    </message>
    <message>
        <source>The folder that it lies in cannot be opened.</source>
        <translation>Der Ordner, in dem es liegt, lässt sich nicht öffnen.</translation>
    </message>
    <message>
        <source>The home of another user, as far as you may read it. Only its owner can tidy it.</source>
        <translation>Der persönliche Ordner eines anderen Benutzers, soweit Sie ihn lesen dürfen. Aufräumen kann nur sein Besitzer.</translation>
    </message>
    <message>
        <source>The list of all file names. The system renews it every day.</source>
        <translation>Die Liste aller Dateinamen. Das System erneuert sie täglich.</translation>
    </message>
    <message>
        <source>The log of a session that has ended.</source>
        <translation>Das Protokoll einer beendeten Sitzung.</translation>
    </message>
    <message>
        <source>The log of the login screen.</source>
        <translation>Das Protokoll des Anmeldebildschirms.</translation>
    </message>
    <message>
        <source>The next Android build makes it again.</source>
        <translation>Der nächste Android-Build erstellt es neu.</translation>
    </message>
    <message>
        <source>The next build compiles everything anew.</source>
        <translation>Der nächste Build kompiliert alles neu.</translation>
    </message>
    <message>
        <source>The next build does everything anew; its folders are read-only, so Bazel itself must remove them.</source>
        <translation>Der nächste Build macht alles neu; die Ordner sind schreibgeschützt, darum muss Bazel sie selbst entfernen.</translation>
    </message>
    <message>
        <source>The package %1 is a part of the system.</source>
        <translation>Das Paket %1 gehört zum System.</translation>
    </message>
    <message>
        <source>The rows add up to %1 more than the disk says is used: copies can share their space, and files may have changed meanwhile.</source>
        <translation>Die Zeilen ergeben %1 mehr, als der Datenträger als belegt meldet: Kopien können sich Platz teilen, und Dateien können sich inzwischen geändert haben.</translation>
    </message>
    <message>
        <source>The rows add up to %1: all that the disk says is used.</source>
        <translation>Die Zeilen ergeben %1: alles, was der Datenträger als belegt meldet.</translation>
    </message>
    <message>
        <source>The system and everything else</source>
        <translation>Das System und alles andere</translation>
    </message>
    <message>
        <source>The system and its packages, below /usr and /opt. Your package manager looks after them.</source>
        <translation>Das System und seine Pakete unter /usr und /opt. Ihre Paketverwaltung kümmert sich darum.</translation>
    </message>
    <message>
        <source>The system keeps these logs; old ones are rarely needed, and journalctl removes them without breaking a service.</source>
        <translation>Protokolle des Systems; alte braucht man selten, und journalctl entfernt sie, ohne Dienste zu stören.</translation>
    </message>
    <message>
        <source>The system removes the older ones by itself.</source>
        <translation>Ältere entfernt das System von selbst.</translation>
    </message>
    <message>
        <source>The top of the disk</source>
        <translation>Oberste Ebene des Datenträgers</translation>
    </message>
    <message>
        <source>The visible folders of your home, and your Trash. Storage and Large Files show what in them takes the space.</source>
        <translation>Die sichtbaren persönlichen Ordner und Ihr Papierkorb. „Speicher“ und „Große Dateien“ zeigen, was darin Platz belegt.</translation>
    </message>
    <message>
        <source>The web framework builds it again.</source>
        <translation>Das Web-Framework erstellt es neu.</translation>
    </message>
    <message>
        <source>The working data of installed apps: libraries, databases, saved sessions. Removing a folder here empties that app. Uninstall the app instead, or clear its caches from inside it.</source>
        <translation>Die Arbeitsdaten installierter Apps: Bibliotheken, Datenbanken, Sitzungen. Einen Ordner zu entfernen leert die App. Deinstallieren Sie sie lieber, oder leeren Sie ihre Caches in der App selbst.</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>Vorschaubilder</translation>
    </message>
    <message>
        <source>Thumbnails (old place)</source>
        <translation>Vorschaubilder (alter Ort)</translation>
    </message>
    <message>
        <source>Thunderbird</source>
        <translation>Thunderbird</translation>
    </message>
    <message>
        <source>Thunderbird (Flatpak)</source>
        <translation>Thunderbird (Flatpak)</translation>
    </message>
    <message>
        <source>Time Machine</source>
        <translation>Time Machine</translation>
    </message>
    <message>
        <source>Time Machine Snapshots</source>
        <translation>Time-Machine-Snapshots</translation>
    </message>
    <message>
        <source>Timeshift</source>
        <translation>Timeshift</translation>
    </message>
    <message>
        <source>Toolchains &amp; Stores</source>
        <translation>Werkzeuge &amp; Speicher</translation>
    </message>
    <message>
        <source>Tor Browser</source>
        <translation>Tor Browser</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>Papierkorb</translation>
    </message>
    <message>
        <source>Trash History</source>
        <translation>Papierkorbverlauf</translation>
    </message>
    <message>
        <source>Trash · cannot be read</source>
        <translation>Papierkorb · nicht lesbar</translation>
    </message>
    <message>
        <source>Trash · needs Full Disk Access</source>
        <translation>Papierkorb · Vollzugriff nötig</translation>
    </message>
    <message>
        <source>Trivy</source>
        <translation>Trivy</translation>
    </message>
    <message>
        <source>Trivy downloads what it needs again.</source>
        <translation>Trivy lädt Benötigtes erneut.</translation>
    </message>
    <message>
        <source>Unavailable until Klarvik is installed.</source>
        <translation>Erst verfügbar, wenn Klarvik installiert ist.</translation>
    </message>
    <message>
        <source>Unavailable until Klarvik is signed and in /Applications.</source>
        <translation>Erst verfügbar, wenn Klarvik signiert ist und in /Applications liegt.</translation>
    </message>
    <message>
        <source>Unfinished Flatpak installation *</source>
        <translation>Unfertige Flatpak-Installation *</translation>
    </message>
    <message>
        <source>Unfinished Steam download *</source>
        <translation>Unfertiger Steam-Download *</translation>
    </message>
    <message>
        <source>Unused Docker images and containers.</source>
        <translation>Ungenutzte Docker-Abbilder und -Container.</translation>
    </message>
    <message>
        <source>Unused Flatpak runtimes</source>
        <translation>Ungenutzte Flatpak-Laufzeiten</translation>
    </message>
    <message>
        <source>Used when memory runs short. Leave it alone.</source>
        <translation>Dient bei knappem Arbeitsspeicher. Nicht anrühren.</translation>
    </message>
    <message>
        <source>Used, but in no folder that you may open: storage of Docker, other users&apos; files, snapshots, and what the file system needs for itself. An administrator can look into it with &apos;du&apos;.</source>
        <translation>Belegt, aber in keinem Ordner, den Sie öffnen dürfen: Speicher von Docker, Dateien anderer Benutzer, Snapshots und was das Dateisystem selbst braucht. Ein Administrator kann mit „du“ nachsehen.</translation>
    </message>
    <message>
        <source>User Diagnostic Reports</source>
        <translation>Diagnoseberichte des Benutzers</translation>
    </message>
    <message>
        <source>User Logs</source>
        <translation>Protokolle des Benutzers</translation>
    </message>
    <message>
        <source>User Preferences</source>
        <translation>Einstellungen des Benutzers</translation>
    </message>
    <message>
        <source>VM &amp; Swap</source>
        <translation>VM &amp; Auslagerung</translation>
    </message>
    <message>
        <source>VS Code Insiders</source>
        <translation>VS Code Insiders</translation>
    </message>
    <message>
        <source>VSCodium</source>
        <translation>VSCodium</translation>
    </message>
    <message>
        <source>Vagrant box *</source>
        <translation>Vagrant-Box *</translation>
    </message>
    <message>
        <source>Vagrant boxes</source>
        <translation>Vagrant-Boxen</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Videos</translation>
    </message>
    <message>
        <source>Virtual machine</source>
        <translation>Virtuelle Maschine</translation>
    </message>
    <message>
        <source>Virtual machines</source>
        <translation>Virtuelle Maschinen</translation>
    </message>
    <message>
        <source>Virtual memory used by macOS. Cannot be deleted — system-managed and essential.</source>
        <translation>Virtueller Speicher von macOS. Nicht löschbar – das System verwaltet und braucht ihn.</translation>
    </message>
    <message>
        <source>VirtualBox</source>
        <translation>VirtualBox</translation>
    </message>
    <message>
        <source>Visual Studio Code</source>
        <translation>Visual Studio Code</translation>
    </message>
    <message>
        <source>Vivaldi</source>
        <translation>Vivaldi</translation>
    </message>
    <message>
        <source>Vivaldi (Flatpak)</source>
        <translation>Vivaldi (Flatpak)</translation>
    </message>
    <message>
        <source>Walking Documents, Downloads, Desktop, Movies and Music. Photo and music libraries are skipped.</source>
        <translation>Dokumente, Downloads, Schreibtisch, Filme und Musik werden durchsucht. Foto- und Musikmediatheken bleiben außen vor.</translation>
    </message>
    <message>
        <source>Walking the visible folders of your home. Photo and music libraries are skipped.</source>
        <translation>Die sichtbaren persönlichen Ordner werden durchsucht. Foto- und Musikmediatheken bleiben außen vor.</translation>
    </message>
    <message>
        <source>Waterfox</source>
        <translation>Waterfox</translation>
    </message>
    <message>
        <source>Waterfox (Flatpak)</source>
        <translation>Waterfox (Flatpak)</translation>
    </message>
    <message>
        <source>Web Storage</source>
        <translation>Webspeicher</translation>
    </message>
    <message>
        <source>Web caches inside the settings of Code - Insiders; its settings, history and unsent messages stay.</source>
        <translation>Web-Caches innerhalb der Einstellungen von VS Code Insiders; Einstellungen, Verlauf und ungesendete Nachrichten bleiben.</translation>
    </message>
    <message>
        <source>Web caches inside the settings of Code; its settings, history and unsent messages stay.</source>
        <translation>Web-Caches innerhalb der Einstellungen von Code; Einstellungen, Verlauf und ungesendete Nachrichten bleiben.</translation>
    </message>
    <message>
        <source>Web caches inside the settings of Cursor; its settings, history and unsent messages stay.</source>
        <translation>Web-Caches innerhalb der Einstellungen von Cursor; Einstellungen, Verlauf und ungesendete Nachrichten bleiben.</translation>
    </message>
    <message>
        <source>Web caches inside the settings of Element; its settings, history and unsent messages stay.</source>
        <translation>Web-Caches innerhalb der Einstellungen von Element; Einstellungen, Verlauf und ungesendete Nachrichten bleiben.</translation>
    </message>
    <message>
        <source>Web caches inside the settings of Microsoft Teams; its settings, history and unsent messages stay.</source>
        <translation>Web-Caches innerhalb der Einstellungen von Microsoft Teams; Einstellungen, Verlauf und ungesendete Nachrichten bleiben.</translation>
    </message>
    <message>
        <source>Web caches inside the settings of Postman; its settings, history and unsent messages stay.</source>
        <translation>Web-Caches innerhalb der Einstellungen von Postman; Einstellungen, Verlauf und ungesendete Nachrichten bleiben.</translation>
    </message>
    <message>
        <source>Web caches inside the settings of Signal; its settings, history and unsent messages stay.</source>
        <translation>Web-Caches innerhalb der Einstellungen von Signal; Einstellungen, Verlauf und ungesendete Nachrichten bleiben.</translation>
    </message>
    <message>
        <source>Web caches inside the settings of Slack; its settings, history and unsent messages stay.</source>
        <translation>Web-Caches innerhalb der Einstellungen von Slack; Einstellungen, Verlauf und ungesendete Nachrichten bleiben.</translation>
    </message>
    <message>
        <source>Web caches inside the settings of VSCodium; its settings, history and unsent messages stay.</source>
        <translation>Web-Caches innerhalb der Einstellungen von VSCodium; Einstellungen, Verlauf und ungesendete Nachrichten bleiben.</translation>
    </message>
    <message>
        <source>Web caches inside the settings of Windsurf; its settings, history and unsent messages stay.</source>
        <translation>Web-Caches innerhalb der Einstellungen von Windsurf; Einstellungen, Verlauf und ungesendete Nachrichten bleiben.</translation>
    </message>
    <message>
        <source>Web caches inside the settings of discord; its settings, history and unsent messages stay.</source>
        <translation>Web-Caches innerhalb der Einstellungen von discord; Einstellungen, Verlauf und ungesendete Nachrichten bleiben.</translation>
    </message>
    <message>
        <source>Web caches inside the settings of obsidian; its settings, history and unsent messages stay.</source>
        <translation>Web-Caches innerhalb der Einstellungen von obsidian; Einstellungen, Verlauf und ungesendete Nachrichten bleiben.</translation>
    </message>
    <message>
        <source>Web caches inside the settings of spotify; its settings, history and unsent messages stay.</source>
        <translation>Web-Caches innerhalb der Einstellungen von spotify; Einstellungen, Verlauf und ungesendete Nachrichten bleiben.</translation>
    </message>
    <message>
        <source>Web pages and pictures; sites load once more slowly. History, passwords and open tabs stay.</source>
        <translation>Webseiten und Bilder; Seiten laden einmal langsamer. Verlauf, Passwörter und offene Tabs bleiben.</translation>
    </message>
    <message>
        <source>What a Flatpak installation left behind half-way.</source>
        <translation>Was eine abgebrochene Flatpak-Installation hinterlassen hat.</translation>
    </message>
    <message>
        <source>What an app remembers from one start to the next. It starts afresh without it.</source>
        <translation>Was sich eine App von Start zu Start merkt. Ohne es beginnt sie von vorn.</translation>
    </message>
    <message>
        <source>What builds left in your projects. The next build makes it again.</source>
        <translation>Was Builds in Ihren Projekten hinterlassen haben. Der nächste Build erstellt es neu.</translation>
    </message>
    <message>
        <source>What lies in /tmp and /var/tmp. Some of it belongs to programs that are running.</source>
        <translation>Was in /tmp und /var/tmp liegt. Manches gehört laufenden Programmen.</translation>
    </message>
    <message>
        <source>What one app keeps. Clear it from inside the app where you can.</source>
        <translation>Was eine App aufhebt. Räumen Sie möglichst in der App selbst auf.</translation>
    </message>
    <message>
        <source>What one service keeps. Change it in that service.</source>
        <translation>Was ein Dienst aufhebt. Ändern Sie es in diesem Dienst.</translation>
    </message>
    <message>
        <source>What programs that crashed left behind. Of use only to whoever looks for the fault.</source>
        <translation>Was abgestürzte Programme hinterlassen haben. Nur bei der Fehlersuche nützlich.</translation>
    </message>
    <message>
        <source>What services and packages keep below /var/lib. The system needs it.</source>
        <translation>Was Dienste und Pakete unter /var/lib aufheben. Das System braucht es.</translation>
    </message>
    <message>
        <source>What services keep. Change it in the service that it belongs to.</source>
        <translation>Was Dienste aufheben. Ändern Sie es im jeweiligen Dienst.</translation>
    </message>
    <message>
        <source>What sites stored for working without a network; they fetch it again.</source>
        <translation>Was Websites für die Arbeit ohne Netz gespeichert haben; sie laden es erneut.</translation>
    </message>
    <message>
        <source>What the desktop&apos;s search knows of your files. The desktop looks after it.</source>
        <translation>Was die Suche der Arbeitsumgebung über Ihre Dateien weiß. Sie kümmert sich selbst darum.</translation>
    </message>
    <message>
        <source>What the machine starts with. Your package manager removes older kernels.</source>
        <translation>Womit der Rechner startet. Ältere Kernel entfernt Ihre Paketverwaltung.</translation>
    </message>
    <message>
        <source>What the system and its services are set to. Leave it alone.</source>
        <translation>Die Einstellungen des Systems und seiner Dienste. Nicht anrühren.</translation>
    </message>
    <message>
        <source>What was installed past the package manager. Whoever put it there can remove it.</source>
        <translation>Was an der Paketverwaltung vorbei installiert wurde. Wer es dort ablegte, kann es entfernen.</translation>
    </message>
    <message>
        <source>What websites keep in this browser. Clear it in the browser&apos;s settings.</source>
        <translation>Was Websites in diesem Browser aufheben. Löschen Sie es in den Einstellungen des Browsers.</translation>
    </message>
    <message>
        <source>What websites keep in your browsers. Removing it may log you out of them.</source>
        <translation>Was Websites in Ihren Browsern aufheben. Es zu entfernen kann Sie abmelden.</translation>
    </message>
    <message>
        <source>What you have deleted. Empty the Trash to get the space back.</source>
        <translation>Was Sie gelöscht haben. Leeren Sie den Papierkorb, um den Platz zu gewinnen.</translation>
    </message>
    <message>
        <source>What your apps keep: libraries, databases, saved sessions. Removing a folder here empties its app, so clear it from inside the app where you can.</source>
        <translation>Was Ihre Apps aufheben: Bibliotheken, Datenbanken, Sitzungen. Einen Ordner zu entfernen leert die App; räumen Sie möglichst in der App selbst auf.</translation>
    </message>
    <message>
        <source>Which windows were open. They do not come back without it.</source>
        <translation>Welche Fenster offen waren. Ohne es kommen sie nicht wieder.</translation>
    </message>
    <message>
        <source>Window positions and state saved by apps. Safe to delete — apps recreate on launch.</source>
        <translation>Von Apps gesicherte Fensterpositionen. Sicher löschbar – Apps legen sie neu an.</translation>
    </message>
    <message>
        <source>Windsurf</source>
        <translation>Windsurf</translation>
    </message>
    <message>
        <source>Wine temporary files</source>
        <translation>Temporäre Wine-Dateien</translation>
    </message>
    <message>
        <source>Wine temporary files of *</source>
        <translation>Temporäre Wine-Dateien von *</translation>
    </message>
    <message>
        <source>X server log *</source>
        <translation>Protokoll des X-Servers *</translation>
    </message>
    <message>
        <source>XCTest Devices</source>
        <translation>XCTest-Geräte</translation>
    </message>
    <message>
        <source>Xcode Archives</source>
        <translation>Xcode-Archive</translation>
    </message>
    <message>
        <source>Xcode Cache</source>
        <translation>Xcode-Cache</translation>
    </message>
    <message>
        <source>Xcode DerivedData</source>
        <translation>Xcode-DerivedData</translation>
    </message>
    <message>
        <source>Xcode Docs Cache</source>
        <translation>Xcode-Dokumentations-Cache</translation>
    </message>
    <message>
        <source>Xcode Playground Devices</source>
        <translation>Xcode-Playground-Geräte</translation>
    </message>
    <message>
        <source>Xcode Products</source>
        <translation>Xcode-Produkte</translation>
    </message>
    <message>
        <source>Xcode UserData</source>
        <translation>Xcode-Benutzerdaten</translation>
    </message>
    <message>
        <source>Xcode data, iOS simulators, Android SDK. Delete old simulators and unused SDKs.</source>
        <translation>Xcode-Daten, iOS-Simulatoren, Android SDK. Löschen Sie alte Simulatoren und ungenutzte SDKs.</translation>
    </message>
    <message>
        <source>Yandex Browser</source>
        <translation>Yandex Browser</translation>
    </message>
    <message>
        <source>Yarn</source>
        <translation>Yarn</translation>
    </message>
    <message>
        <source>Yarn (Berry)</source>
        <translation>Yarn (Berry)</translation>
    </message>
    <message>
        <source>Yarn Cache</source>
        <translation>Yarn-Cache</translation>
    </message>
    <message>
        <source>Yarn downloads what it needs again.</source>
        <translation>Yarn lädt Benötigtes erneut.</translation>
    </message>
    <message>
        <source>Your Files</source>
        <translation>Ihre Dateien</translation>
    </message>
    <message>
        <source>Your home</source>
        <translation>Ihr persönlicher Ordner</translation>
    </message>
    <message>
        <source>Your messages. Remove mail in its program.</source>
        <translation>Ihre Nachrichten. Löschen Sie E-Mails im Programm selbst.</translation>
    </message>
    <message>
        <source>Your own folder. Storage shows what in it takes the space.</source>
        <translation>Ihr eigener Ordner. „Speicher“ zeigt, was darin Platz belegt.</translation>
    </message>
    <message>
        <source>Your unused Flatpak runtimes</source>
        <translation>Ihre ungenutzten Flatpak-Laufzeiten</translation>
    </message>
    <message>
        <source>Zen</source>
        <translation>Zen</translation>
    </message>
    <message>
        <source>Zen (Flatpak)</source>
        <translation>Zen (Flatpak)</translation>
    </message>
    <message>
        <source>Zig</source>
        <translation>Zig</translation>
    </message>
    <message>
        <source>Zig downloads what it needs again.</source>
        <translation>Zig lädt Benötigtes erneut.</translation>
    </message>
    <message>
        <source>all Windows programs</source>
        <translation>alle Windows-Programme</translation>
    </message>
    <message>
        <source>apt packages</source>
        <translation>apt-Pakete</translation>
    </message>
    <message>
        <source>asdf tools</source>
        <translation>asdf-Werkzeuge</translation>
    </message>
    <message>
        <source>cargo build makes it again.</source>
        <translation>„cargo build“ erstellt es neu.</translation>
    </message>
    <message>
        <source>ccache</source>
        <translation>ccache</translation>
    </message>
    <message>
        <source>ccache (old place)</source>
        <translation>ccache (alter Ort)</translation>
    </message>
    <message>
        <source>cmake and a build make it again.</source>
        <translation>cmake und ein Build erstellen es neu.</translation>
    </message>
    <message>
        <source>composer install fetches it again.</source>
        <translation>„composer install“ lädt es erneut.</translation>
    </message>
    <message>
        <source>conda packages</source>
        <translation>conda-Pakete</translation>
    </message>
    <message>
        <source>conda packages (Anaconda)</source>
        <translation>conda-Pakete (Anaconda)</translation>
    </message>
    <message>
        <source>conda packages (Miniconda)</source>
        <translation>conda-Pakete (Miniconda)</translation>
    </message>
    <message>
        <source>containerd</source>
        <translation>containerd</translation>
    </message>
    <message>
        <source>dnf packages</source>
        <translation>dnf-Pakete</translation>
    </message>
    <message>
        <source>dotnet build makes it again.</source>
        <translation>„dotnet build“ erstellt es neu.</translation>
    </message>
    <message>
        <source>electron</source>
        <translation>electron</translation>
    </message>
    <message>
        <source>electron downloads what it needs again.</source>
        <translation>electron lädt Benötigtes erneut.</translation>
    </message>
    <message>
        <source>electron-builder</source>
        <translation>electron-builder</translation>
    </message>
    <message>
        <source>electron-builder downloads what it needs again.</source>
        <translation>electron-builder lädt Benötigtes erneut.</translation>
    </message>
    <message>
        <source>flutter or dart makes it again.</source>
        <translation>flutter oder dart erstellt es neu.</translation>
    </message>
    <message>
        <source>golangci-lint</source>
        <translation>golangci-lint</translation>
    </message>
    <message>
        <source>golangci-lint checks everything anew.</source>
        <translation>golangci-lint prüft alles neu.</translation>
    </message>
    <message>
        <source>gopls</source>
        <translation>gopls</translation>
    </message>
    <message>
        <source>gopls reads your modules anew.</source>
        <translation>gopls liest Ihre Module neu.</translation>
    </message>
    <message>
        <source>gradle build makes it again.</source>
        <translation>„gradle build“ erstellt es neu.</translation>
    </message>
    <message>
        <source>iCloud &amp; Mobile Docs</source>
        <translation>iCloud &amp; mobile Dokumente</translation>
    </message>
    <message>
        <source>iCloud Drive (local)</source>
        <translation>iCloud Drive (lokal)</translation>
    </message>
    <message>
        <source>iCloud Drive and Mobile Documents data. Managed by iCloud — do not delete manually.</source>
        <translation>Daten von iCloud Drive und mobilen Dokumenten. Von iCloud verwaltet – nicht von Hand löschen.</translation>
    </message>
    <message>
        <source>iOS Device Support</source>
        <translation>iOS-Geräteunterstützung</translation>
    </message>
    <message>
        <source>iOS Simulators</source>
        <translation>iOS-Simulatoren</translation>
    </message>
    <message>
        <source>iOS/iPadOS firmware files (IPSW). Safe to delete after updating your devices.</source>
        <translation>iOS-/iPadOS-Firmware (IPSW). Nach dem Aktualisieren Ihrer Geräte sicher löschbar.</translation>
    </message>
    <message>
        <source>iPhone Backups</source>
        <translation>iPhone-Backups</translation>
    </message>
    <message>
        <source>iPhone/iPad backups stored locally on your Mac.</source>
        <translation>Lokale iPhone-/iPad-Backups auf Ihrem Mac.</translation>
    </message>
    <message>
        <source>kept for the system</source>
        <translation>für das System reserviert</translation>
    </message>
    <message>
        <source>kubectl</source>
        <translation>kubectl</translation>
    </message>
    <message>
        <source>kubectl downloads what it needs again.</source>
        <translation>kubectl lädt Benötigtes erneut.</translation>
    </message>
    <message>
        <source>locate</source>
        <translation>locate</translation>
    </message>
    <message>
        <source>macOS %1</source>
        <translation>macOS %1</translation>
    </message>
    <message>
        <source>macOS Device Support</source>
        <translation>macOS-Geräteunterstützung</translation>
    </message>
    <message>
        <source>macOS and everything else</source>
        <translation>macOS und alles andere</translation>
    </message>
    <message>
        <source>macOS diagnostic and crash logs.</source>
        <translation>Diagnose- und Absturzprotokolle von macOS.</translation>
    </message>
    <message>
        <source>meson setup and a build make it again.</source>
        <translation>„meson setup“ und ein Build erstellen es neu.</translation>
    </message>
    <message>
        <source>micromamba</source>
        <translation>micromamba</translation>
    </message>
    <message>
        <source>micromamba packages</source>
        <translation>micromamba-Pakete</translation>
    </message>
    <message>
        <source>minikube</source>
        <translation>minikube</translation>
    </message>
    <message>
        <source>minikube cache</source>
        <translation>minikube-Cache</translation>
    </message>
    <message>
        <source>minikube cluster *</source>
        <translation>minikube-Cluster *</translation>
    </message>
    <message>
        <source>minikube downloads what it needs again.</source>
        <translation>minikube lädt Benötigtes erneut.</translation>
    </message>
    <message>
        <source>mix makes it again.</source>
        <translation>mix erstellt es neu.</translation>
    </message>
    <message>
        <source>mvn package makes it again.</source>
        <translation>„mvn package“ erstellt es neu.</translation>
    </message>
    <message>
        <source>node-gyp</source>
        <translation>node-gyp</translation>
    </message>
    <message>
        <source>node-gyp downloads what it needs again.</source>
        <translation>node-gyp lädt Benötigtes erneut.</translation>
    </message>
    <message>
        <source>npm</source>
        <translation>npm</translation>
    </message>
    <message>
        <source>npm Cache</source>
        <translation>npm-Cache</translation>
    </message>
    <message>
        <source>npm downloads what it needs again.</source>
        <translation>npm lädt Benötigtes erneut.</translation>
    </message>
    <message>
        <source>npm install fetches it again; the project itself stays.</source>
        <translation>„npm install“ lädt es erneut; das Projekt selbst bleibt.</translation>
    </message>
    <message>
        <source>npm logs</source>
        <translation>npm-Protokolle</translation>
    </message>
    <message>
        <source>npx</source>
        <translation>npx</translation>
    </message>
    <message>
        <source>npx downloads what it needs again.</source>
        <translation>npx lädt Benötigtes erneut.</translation>
    </message>
    <message>
        <source>nvm</source>
        <translation>nvm</translation>
    </message>
    <message>
        <source>nvm (Node Versions)</source>
        <translation>nvm (Node-Versionen)</translation>
    </message>
    <message>
        <source>nvm downloads what it needs again.</source>
        <translation>nvm lädt Benötigtes erneut.</translation>
    </message>
    <message>
        <source>ownCloud</source>
        <translation>ownCloud</translation>
    </message>
    <message>
        <source>pCloud</source>
        <translation>pCloud</translation>
    </message>
    <message>
        <source>pacman packages</source>
        <translation>pacman-Pakete</translation>
    </message>
    <message>
        <source>pip</source>
        <translation>pip</translation>
    </message>
    <message>
        <source>pip Cache</source>
        <translation>pip-Cache</translation>
    </message>
    <message>
        <source>pip downloads what it needs again.</source>
        <translation>pip lädt Benötigtes erneut.</translation>
    </message>
    <message>
        <source>pnpm Store</source>
        <translation>pnpm-Speicher</translation>
    </message>
    <message>
        <source>pnpm downloads what it needs again.</source>
        <translation>pnpm lädt Benötigtes erneut.</translation>
    </message>
    <message>
        <source>pnpm metadata</source>
        <translation>pnpm-Metadaten</translation>
    </message>
    <message>
        <source>pnpm store</source>
        <translation>pnpm-Speicher</translation>
    </message>
    <message>
        <source>pnpm store (*)</source>
        <translation>pnpm-Speicher (*)</translation>
    </message>
    <message>
        <source>pre-commit</source>
        <translation>pre-commit</translation>
    </message>
    <message>
        <source>pre-commit downloads what it needs again.</source>
        <translation>pre-commit lädt Benötigtes erneut.</translation>
    </message>
    <message>
        <source>pyenv</source>
        <translation>pyenv</translation>
    </message>
    <message>
        <source>pyenv downloads what it needs again.</source>
        <translation>pyenv lädt Benötigtes erneut.</translation>
    </message>
    <message>
        <source>qutebrowser</source>
        <translation>qutebrowser</translation>
    </message>
    <message>
        <source>rbenv (Ruby Versions)</source>
        <translation>rbenv (Ruby-Versionen)</translation>
    </message>
    <message>
        <source>rebar3</source>
        <translation>rebar3</translation>
    </message>
    <message>
        <source>rebar3 downloads what it needs again.</source>
        <translation>rebar3 lädt Benötigtes erneut.</translation>
    </message>
    <message>
        <source>sbt</source>
        <translation>sbt</translation>
    </message>
    <message>
        <source>sbt compile makes it again.</source>
        <translation>„sbt compile“ erstellt es neu.</translation>
    </message>
    <message>
        <source>sbt downloads what it needs again.</source>
        <translation>sbt lädt Benötigtes erneut.</translation>
    </message>
    <message>
        <source>sccache</source>
        <translation>sccache</translation>
    </message>
    <message>
        <source>snapd downloads</source>
        <translation>snapd-Downloads</translation>
    </message>
    <message>
        <source>stack or cabal makes it again.</source>
        <translation>stack oder cabal erstellt es neu.</translation>
    </message>
    <message>
        <source>systemd&apos;s machines</source>
        <translation>Maschinen von systemd</translation>
    </message>
    <message>
        <source>terraform init fetches the providers again.</source>
        <translation>„terraform init“ lädt die Provider erneut.</translation>
    </message>
    <message>
        <source>the Gradle daemon</source>
        <translation>den Gradle-Daemon</translation>
    </message>
    <message>
        <source>the IDE</source>
        <translation>die IDE</translation>
    </message>
    <message>
        <source>uv</source>
        <translation>uv</translation>
    </message>
    <message>
        <source>uv downloads packages again; where environments link into the cache uv itself must remove it.</source>
        <translation>uv lädt Pakete erneut; wo Umgebungen auf den Cache verweisen, muss uv ihn selbst entfernen.</translation>
    </message>
    <message>
        <source>vcpkg</source>
        <translation>vcpkg</translation>
    </message>
    <message>
        <source>vcpkg downloads what it needs again.</source>
        <translation>vcpkg lädt Benötigtes erneut.</translation>
    </message>
    <message>
        <source>watchOS Device Support</source>
        <translation>watchOS-Geräteunterstützung</translation>
    </message>
    <message>
        <source>winetricks installers</source>
        <translation>winetricks-Installationsdateien</translation>
    </message>
    <message>
        <source>winetricks installers (old place)</source>
        <translation>winetricks-Installationsdateien (alter Ort)</translation>
    </message>
    <message>
        <source>zig build makes it again.</source>
        <translation>„zig build“ erstellt es neu.</translation>
    </message>
    <message>
        <source>zypper packages</source>
        <translation>zypper-Pakete</translation>
    </message>
    <message>
        <source>Its database is damaged: left as it is</source>
        <translation>Datenbank beschädigt, bleibt unverändert</translation>
    </message>
    <message>
        <source>Too large to clear from here</source>
        <translation>Zu groß, um es von hier zu löschen</translation>
    </message>
    <message>
        <source>In Clipman: Clear history</source>
        <translation>In Clipman: Verlauf löschen</translation>
    </message>
    <message>
        <source>In CopyQ, entry by entry</source>
        <translation>In CopyQ, Eintrag für Eintrag</translation>
    </message>
    <message>
        <source>In System Settings: Recent Files</source>
        <translation>In den Systemeinstellungen: Zuletzt verwendet</translation>
    </message>
    <message>
        <source>In the top bar: Clear history</source>
        <translation>In der oberen Leiste: Verlauf löschen</translation>
    </message>
    <message>
        <source>In the tray: Clear Clipboard History</source>
        <translation>In der Leiste: Verlauf löschen</translation>
    </message>
    <message>
        <source>Scanning origin of downloads...</source>
        <translation>Scannen: Herkunft von Downloads …</translation>
    </message>
    <message>
        <source>The package %2 needs %1, and has to be removed first.</source>
        <translation>Das Paket %2 braucht %1 und muss zuerst entfernt werden.</translation>
    </message>
</context>
<context>
    <name>FolderBrowserRow</name>
    <message>
        <source>Move to Trash</source>
        <translation>In den Papierkorb verschieben</translation>
    </message>
</context>
<context>
    <name>FolderBrowserView</name>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>To the level above</source>
        <translation>Eine Ebene höher</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Speicher</translation>
    </message>
    <message>
        <source>Folders and files, largest first</source>
        <translation>Ordner und Dateien, die größten zuerst</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>In den Papierkorb</translation>
    </message>
</context>
<context>
    <name>FolderStrip</name>
    <message>
        <source>Folders</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Add folder…</source>
        <translation>Hinzufügen …</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behalten</translation>
    </message>
    <message>
        <source>Fewer</source>
        <translation>Weniger</translation>
    </message>
    <message>
        <source>+%1 more</source>
        <translation>+%1 weitere</translation>
    </message>
    <message>
        <source>Show all folders</source>
        <translation>Alle Ordner zeigen</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Put %1 back</source>
        <translation>%1 wieder aufnehmen</translation>
    </message>
</context>
<context>
    <name>Formatting</name>
    <message>
        <source>Zero KB</source>
        <translation>0 KB</translation>
    </message>
    <message>
        <source>1 byte</source>
        <translation>1 Byte</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 Byte</translation>
    </message>
    <message>
        <source>KB MB GB TB PB EB</source>
        <extracomment>Six units, a blank between them.</extracomment>
        <translation>KB MB GB TB PB EB</translation>
    </message>
</context>
<context>
    <name>FoundBlock</name>
    <message>
        <source>Total found</source>
        <translation>Insgesamt gefunden</translation>
    </message>
</context>
<context>
    <name>FullDiskAccessView</name>
    <message>
        <source>Click the button below — System Settings opens on the right page</source>
        <translation>Klicken Sie unten – die Systemeinstellungen öffnen sich auf der richtigen Seite</translation>
    </message>
    <message>
        <source>Turn on the switch next to Klarvik</source>
        <translation>Schalten Sie den Schalter neben Klarvik ein</translation>
    </message>
    <message>
        <source>Quit and reopen Klarvik</source>
        <translation>Beenden Sie Klarvik und öffnen Sie es erneut</translation>
    </message>
    <message>
        <source>Open System Settings</source>
        <translation>Systemeinstellungen öffnen</translation>
    </message>
    <message>
        <source>You can skip this and grant it later in Settings. Klarvik still finds plenty without it.</source>
        <translation>Sie können das überspringen und später in den Einstellungen erlauben. Klarvik findet auch so viel.</translation>
    </message>
    <message>
        <source>This build has no signing identity, so macOS treats every rebuild as a different app and forgets the permission. Released builds keep it.</source>
        <translation>Dieser Build ist nicht signiert. macOS hält jeden neuen Build für eine andere App und vergisst die Erlaubnis. Veröffentlichte Versionen behalten sie.</translation>
    </message>
</context>
<context>
    <name>GeneralSettingsSection</name>
    <message>
        <source>Startup</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Bei der Anmeldung starten</translation>
    </message>
    <message>
        <source>Deleting</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Move to Trash instead of deleting</source>
        <translation>In den Papierkorb verschieben statt löschen</translation>
    </message>
    <message>
        <source>Ask before removing Review items</source>
        <translation>Vor dem Entfernen zu prüfender Objekte nachfragen</translation>
    </message>
    <message>
        <source>System folders, other user accounts and your document folders are always refused, regardless of these settings.</source>
        <translation>Systemordner, andere Benutzerkonten und Ihre Dokumentordner sind immer geschützt, gleich was hier eingestellt ist.</translation>
    </message>
    <message>
        <source>Full Disk Access</source>
        <translation>Vollzugriff</translation>
    </message>
    <message>
        <source>Granted</source>
        <translation>Erlaubt</translation>
    </message>
    <message>
        <source>Not granted</source>
        <translation>Nicht erlaubt</translation>
    </message>
    <message>
        <source>Open System Settings</source>
        <translation>Systemeinstellungen öffnen</translation>
    </message>
    <message>
        <source>Reopen Klarvik</source>
        <translation>Klarvik neu öffnen</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>Scannen</translation>
    </message>
    <message>
        <source>Measure every tool when Klarvik opens</source>
        <translation>Beim Öffnen mit allen Werkzeugen messen</translation>
    </message>
    <message>
        <source>Turn this off if you do not write software — those categories will stop appearing.</source>
        <translation>Schalten Sie dies aus, wenn Sie keine Software entwickeln – diese Kategorien erscheinen dann nicht mehr.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über Klarvik</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Datenschutz</translation>
    </message>
    <message>
        <source>Terms</source>
        <translation>Nutzungsbedingungen</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Show onboarding again</source>
        <translation>Einführung erneut zeigen</translation>
    </message>
</context>
<context>
    <name>IndeterminateBar</name>
    <message>
        <source>Working</source>
        <translation>In Arbeit</translation>
    </message>
</context>
<context>
    <name>InlineLoader</name>
    <message>
        <source>Working</source>
        <translation>In Arbeit</translation>
    </message>
</context>
<context>
    <name>Kit</name>
    <message>
        <source>%1%</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>KEEP</source>
        <translation>BLEIBT</translation>
    </message>
    <message>
        <source>DELETE</source>
        <translation>GEHT</translation>
    </message>
    <message>
        <source>Review</source>
        <translation>Prüfen</translation>
    </message>
    <message>
        <source>Safe</source>
        <translation>Sicher</translation>
    </message>
    <message>
        <source>Removing %1 of %2 · %3 so far</source>
        <translation>Entferne %1 von %2 · bisher %3</translation>
    </message>
    <message>
        <source>Starting…</source>
        <translation>Beginnt …</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Working…</source>
        <translation>In Arbeit …</translation>
    </message>
    <message>
        <source>This frees %1 once the Trash is emptied. Nothing is removed permanently.</source>
        <translation>Das gibt %1 frei, sobald der Papierkorb geleert wird. Endgültig gelöscht wird nichts.</translation>
    </message>
    <message>
        <source>%1 free of %2</source>
        <translation>%1 von %2 frei</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>LargeFileFinderView</name>
    <message>
        <source>FILE</source>
        <translation>DATEI</translation>
    </message>
    <message>
        <source>KIND</source>
        <translation>ART</translation>
    </message>
    <message>
        <source>LAST OPENED</source>
        <translation>ZULETZT GEÖFFNET</translation>
    </message>
    <message>
        <source>SIZE</source>
        <translation>GRÖSSE</translation>
    </message>
    <message>
        <source>Over</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>All kinds</source>
        <translation>Alle Arten</translation>
    </message>
</context>
<context>
    <name>LargeFileTable</name>
    <message>
        <source>Large files</source>
        <translation>Große Dateien</translation>
    </message>
</context>
<context>
    <name>LargeFiles</name>
    <message>
        <source>Rescan</source>
        <translation>Erneut suchen</translation>
    </message>
    <message>
        <source>Scanning your home folder</source>
        <translation>Persönlicher Ordner wird durchsucht</translation>
    </message>
    <message numerus="yes">
        <source>%n files over %1 MB in your home folder</source>
        <translation>
            <numerusform>%n Datei über %1 MB in Ihrem persönlichen Ordner</numerusform>
            <numerusform>%n Dateien über %1 MB in Ihrem persönlichen Ordner</numerusform>
        </translation>
    </message>
    <message>
        <source>Finds the biggest files in your home folder. Nothing is pre-selected.</source>
        <translation>Findet die größten Dateien in Ihrem persönlichen Ordner. Nichts ist vorausgewählt.</translation>
    </message>
    <message>
        <source>Measuring</source>
        <translation>Wird gemessen</translation>
    </message>
    <message>
        <source>No scan yet</source>
        <translation>Noch nicht gesucht</translation>
    </message>
    <message>
        <source>Rescan to list the biggest files in your home folder.</source>
        <translation>Eine Suche zeigt die größten Dateien Ihres persönlichen Ordners.</translation>
    </message>
    <message>
        <source>Reading Documents, Desktop and Downloads needs Full Disk Access, so this one waits until you ask. Rescan and Klarvik will explain what macOS is about to request.</source>
        <translation>Dokumente, Schreibtisch und Downloads zu lesen erfordert Festplattenvollzugriff. Darum wird hier gewartet, bis Sie es wünschen. Suchen Sie erneut, und Klarvik erklärt, was macOS fragen wird.</translation>
    </message>
    <message>
        <source>Nothing that big</source>
        <translation>Nichts so Großes</translation>
    </message>
    <message>
        <source>No files over %1 MB matched.</source>
        <translation>Keine Datei über %1 MB gefunden.</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 selected · 1 file</source>
        <translation>%1 ausgewählt · 1 Datei</translation>
    </message>
    <message numerus="yes">
        <source>%1 selected · %n files</source>
        <translation>
            <numerusform>%1 ausgewählt · %n Datei</numerusform>
            <numerusform>%1 ausgewählt · %n Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>Move %1 to Trash</source>
        <translation>%1 in den Papierkorb</translation>
    </message>
    <message>
        <source>These are your own files, not junk. Klarvik never pre-selects them.</source>
        <translation>Dies sind Ihre eigenen Dateien. Klarvik wählt sie nie von selbst aus.</translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n Datei</numerusform>
            <numerusform>%n Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>last opened %1</source>
        <translation>zuletzt geöffnet: %1</translation>
    </message>
</context>
<context>
    <name>LeftoverTable</name>
    <message>
        <source>Leftovers</source>
        <translation>Reste</translation>
    </message>
</context>
<context>
    <name>LiftingLoader</name>
    <message>
        <source>Working</source>
        <translation>In Arbeit</translation>
    </message>
</context>
<context>
    <name>Onboarding</name>
    <message>
        <source>Run first scan</source>
        <translation>Ersten Scan starten</translation>
    </message>
    <message>
        <source>Open System Settings</source>
        <translation>Systemeinstellungen öffnen</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Weiter</translation>
    </message>
</context>
<context>
    <name>OnboardingFooter</name>
    <message>
        <source>Step %1 of %2</source>
        <translation>Schritt %1 von %2</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Später</translation>
    </message>
</context>
<context>
    <name>OtherToolsBar</name>
    <message>
        <source>FOUND BY THE OTHER TOOLS</source>
        <translation>VON ANDEREN WERKZEUGEN GEFUNDEN</translation>
    </message>
</context>
<context>
    <name>PermissionPage</name>
    <message>
        <source>Give it Full Disk Access</source>
        <translation>Festplattenvollzugriff erlauben</translation>
    </message>
    <message>
        <source>Without this permission macOS hides the caches and backups that take up the most room, and Klarvik reports far less than is really there.</source>
        <translation>Ohne diese Erlaubnis verbirgt macOS die größten Caches und Backups, und Klarvik zeigt weit weniger, als da ist.</translation>
    </message>
    <message>
        <source>Full Disk Access granted. Klarvik can see everything it measures.</source>
        <translation>Festplattenvollzugriff erlaubt. Klarvik sieht alles, was es misst.</translation>
    </message>
    <message>
        <source>Open Privacy &amp; Security → Full Disk Access</source>
        <translation>Öffnen Sie „Datenschutz &amp; Sicherheit → Festplattenvollzugriff“</translation>
    </message>
    <message>
        <source>Open for me</source>
        <translation>Für mich öffnen</translation>
    </message>
    <message>
        <source>Find Klarvik in the list and switch it on</source>
        <translation>Suchen Sie Klarvik in der Liste und schalten Sie es ein</translation>
    </message>
    <message>
        <source>Come back here, then reopen Klarvik to apply it</source>
        <translation>Kehren Sie zurück und öffnen Sie Klarvik erneut</translation>
    </message>
    <message>
        <source>Waiting for permission — status updates automatically.</source>
        <translation>Warte auf die Erlaubnis – die Anzeige aktualisiert sich von selbst.</translation>
    </message>
    <message>
        <source>Already switched it on?</source>
        <translation>Schon eingeschaltet?</translation>
    </message>
    <message>
        <source>Reopen Klarvik</source>
        <translation>Klarvik neu öffnen</translation>
    </message>
</context>
<context>
    <name>Privacy</name>
    <message>
        <source>Clearing a trail is not the same as freeing space. Each row says what it costs you.</source>
        <translation>Spuren zu löschen gibt kaum Platz frei. Jede Zeile sagt, was es Sie kostet.</translation>
    </message>
    <message>
        <source>Reading trails</source>
        <translation>Spuren werden gelesen</translation>
    </message>
    <message>
        <source>Nothing is cleared by a scan.</source>
        <translation>Ein Scan löscht nichts.</translation>
    </message>
    <message>
        <source>No scan yet</source>
        <translation>Noch nicht gescannt</translation>
    </message>
    <message>
        <source>Nothing to clear</source>
        <translation>Nichts zu löschen</translation>
    </message>
    <message numerus="yes">
        <source>%n trails</source>
        <translation>
            <numerusform>%n Spur</numerusform>
            <numerusform>%n Spuren</numerusform>
        </translation>
    </message>
    <message>
        <source>1 trail</source>
        <translation>1 Spur</translation>
    </message>
    <message>
        <source>Autocomplete forgets sites</source>
        <translation>Adressvorschläge gehen verloren</translation>
    </message>
    <message>
        <source>Signs you out everywhere</source>
        <translation>Meldet Sie überall ab</translation>
    </message>
    <message>
        <source>Sites reload once, slower</source>
        <translation>Seiten laden einmal langsamer</translation>
    </message>
    <message>
        <source>Recent menus empty out</source>
        <translation>Listen letzter Dateien leeren sich</translation>
    </message>
    <message>
        <source>Recent apps list empties</source>
        <translation>Liste letzter Apps leert sich</translation>
    </message>
    <message>
        <source>Download history forgotten</source>
        <translation>Download-Verlauf geht verloren</translation>
    </message>
    <message>
        <source>Whatever you last copied</source>
        <translation>Was Sie zuletzt kopiert haben</translation>
    </message>
    <message>
        <source>Downloaded-from records go</source>
        <translation>Herkunft von Downloads geht verloren</translation>
    </message>
    <message>
        <source>Where trashed files came from</source>
        <translation>Woher Dateien im Papierkorb stammen</translation>
    </message>
    <message>
        <source>Cached location lookups</source>
        <translation>Zwischengespeicherte Ortsabfragen</translation>
    </message>
    <message>
        <source>Commands you typed are forgotten</source>
        <translation>Eingegebene Befehle gehen verloren</translation>
    </message>
    <message>
        <source>Previews of pictures, deleted ones too</source>
        <translation>Bildvorschauen, auch von gelöschten</translation>
    </message>
    <message numerus="yes">
        <source>Cleared %n trails · %1 freed</source>
        <translation>
            <numerusform>%n Spur gelöscht · %1 gewonnen</numerusform>
            <numerusform>%n Spuren gelöscht · %1 gewonnen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n stayed: in use, or changed since the scan</source>
        <translation>
            <numerusform>%n blieb: in Gebrauch oder seit dem Scan geändert</numerusform>
            <numerusform>%n blieben: in Gebrauch oder seit dem Scan geändert</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 selected · %2</source>
        <translation>%1 ausgewählt · %2</translation>
    </message>
    <message>
        <source>Your selection signs you out of sites. This cannot be undone.</source>
        <translation>Ihre Auswahl meldet Sie von Websites ab. Das lässt sich nicht widerrufen.</translation>
    </message>
    <message>
        <source>Your selection forgets the commands you typed. This cannot be undone.</source>
        <translation>Ihre Auswahl löscht eingegebene Befehle. Das lässt sich nicht widerrufen.</translation>
    </message>
    <message>
        <source>Clearing a trail is permanent, but nothing you rely on is removed.</source>
        <translation>Spuren werden endgültig gelöscht, aber nichts, worauf Sie angewiesen sind.</translation>
    </message>
    <message>
        <source>Clear %1</source>
        <translation>%1 löschen</translation>
    </message>
    <message>
        <source>Every site forgets that you are signed in once these are cleared. This cannot be undone.</source>
        <translation>Danach sind Sie auf keiner Website mehr angemeldet. Das lässt sich nicht widerrufen.</translation>
    </message>
    <message>
        <source>Stayed: in use, or changed</source>
        <translation>Blieb: in Benutzung oder geändert</translation>
    </message>
</context>
<context>
    <name>PrivacyCleanerView</name>
    <message>
        <source>Privacy</source>
        <translation>Privatsphäre</translation>
    </message>
    <message>
        <source>Rescan</source>
        <translation>Erneut scannen</translation>
    </message>
    <message>
        <source>TRAIL</source>
        <translation>SPUR</translation>
    </message>
    <message>
        <source>WHAT CLEARING COSTS</source>
        <translation>WAS DAS LÖSCHEN KOSTET</translation>
    </message>
    <message>
        <source>ITEMS</source>
        <translation>EINTRÄGE</translation>
    </message>
    <message>
        <source>SIZE</source>
        <translation>GRÖSSE</translation>
    </message>
    <message>
        <source>Sign out of sites?</source>
        <translation>Von Websites abmelden?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Clear and Sign Out</source>
        <translation>Löschen und abmelden</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>Klarvik is running already, on another display of yours.</source>
        <translation>Klarvik läuft bereits auf einer anderen Ihrer Anzeigen.</translation>
    </message>
    <message>
        <source>Klarvik is running already and does not answer. End that one first.</source>
        <translation>Klarvik läuft bereits und antwortet nicht. Beenden Sie es zuerst.</translation>
    </message>
    <message>
        <source>Klarvik needs a home folder of your own, and found none: it cleans nothing else.</source>
        <translation>Klarvik braucht einen persönlichen Ordner, und es wurde keiner gefunden: Anderes bereinigt es nicht.</translation>
    </message>
    <message>
        <source>Klarvik could not draw its window.</source>
        <translation>Klarvik konnte sein Fenster nicht zeichnen.</translation>
    </message>
</context>
<context>
    <name>ReadyPage</name>
    <message>
        <source>Ready when you are</source>
        <translation>Alles bereit</translation>
    </message>
    <message>
        <source>The first scan takes about a minute and deletes nothing. You will see everything it found, grouped and labelled, before any button becomes destructive.</source>
        <translation>Der erste Scan dauert etwa eine Minute und löscht nichts. Sie sehen alles, was er gefunden hat, geordnet und beschriftet, bevor irgendetwas gelöscht werden kann.</translation>
    </message>
    <message>
        <source>Full Disk Access</source>
        <translation>Festplattenvollzugriff</translation>
    </message>
    <message>
        <source>Granted</source>
        <translation>Erlaubt</translation>
    </message>
    <message>
        <source>Not granted</source>
        <translation>Nicht erlaubt</translation>
    </message>
    <message>
        <source>Reads</source>
        <translation>Liest</translation>
    </message>
    <message>
        <source>your home folder, and what everybody may read</source>
        <translation>Ihren persönlichen Ordner und was alle lesen dürfen</translation>
    </message>
    <message>
        <source>Removals go to</source>
        <translation>Entferntes kommt in</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>den Papierkorb</translation>
    </message>
</context>
<context>
    <name>Removal</name>
    <message>
        <source>1 item was left alone: something else has taken its place since it was listed.</source>
        <translation>1 Objekt blieb unberührt: An seiner Stelle liegt inzwischen etwas anderes.</translation>
    </message>
    <message numerus="yes">
        <source>%n items were left alone: something else has taken their places since they were listed.</source>
        <translation>
            <numerusform>%n Objekt blieb unberührt: An seiner Stelle liegt inzwischen etwas anderes.</numerusform>
            <numerusform>%n Objekte blieben unberührt: An ihrer Stelle liegt inzwischen etwas anderes.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 copy was left alone: it is the same file as the one that stays, under another name, so deleting it would free nothing.</source>
        <translation>1 Kopie blieb unberührt: Sie ist dieselbe Datei wie die, die bleibt, unter anderem Namen. Sie zu löschen gäbe nichts frei.</translation>
    </message>
    <message numerus="yes">
        <source>%n copies were left alone: they are the same files as those that stay, under other names, so deleting them would free nothing.</source>
        <translation>
            <numerusform>%n Kopie blieb unberührt: Sie ist dieselbe Datei wie die, die bleibt, unter anderem Namen. Sie zu löschen gäbe nichts frei.</numerusform>
            <numerusform>%n Kopien blieben unberührt: Sie sind dieselben Dateien wie die, die bleiben, unter anderen Namen. Sie zu löschen gäbe nichts frei.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 item was not put back: something else has taken its place in the Trash.</source>
        <translation>1 Objekt wurde nicht zurückgelegt: An seiner Stelle liegt im Papierkorb etwas anderes.</translation>
    </message>
    <message numerus="yes">
        <source>%n items were not put back: something else has taken their places in the Trash.</source>
        <translation>
            <numerusform>%n Objekt wurde nicht zurückgelegt: An seiner Stelle liegt im Papierkorb etwas anderes.</numerusform>
            <numerusform>%n Objekte wurden nicht zurückgelegt: An ihrer Stelle liegt im Papierkorb etwas anderes.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 item is still there: the tool that removes it failed, was refused, or found nothing to remove.</source>
        <translation>1 Objekt ist noch da: Das Werkzeug, das es entfernt, ist gescheitert, wurde abgewiesen oder fand nichts zu entfernen.</translation>
    </message>
    <message numerus="yes">
        <source>%n items are still there: the tools that remove them failed, were refused, or found nothing to remove.</source>
        <translation>
            <numerusform>%n Objekt ist noch da: Das Werkzeug, das es entfernt, ist gescheitert, wurde abgewiesen oder fand nichts zu entfernen.</numerusform>
            <numerusform>%n Objekte sind noch da: Die Werkzeuge, die sie entfernen, sind gescheitert, wurden abgewiesen oder fanden nichts zu entfernen.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 item was not moved: the Trash could not take it.</source>
        <translation>1 Objekt wurde nicht verschoben: Der Papierkorb konnte es nicht aufnehmen.</translation>
    </message>
    <message numerus="yes">
        <source>%n items were not moved: the Trash could not take them.</source>
        <translation>
            <numerusform>%n Objekt wurde nicht verschoben: Der Papierkorb konnte es nicht aufnehmen.</numerusform>
            <numerusform>%n Objekte wurden nicht verschoben: Der Papierkorb konnte sie nicht aufnehmen.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RemovalAdvice</name>
    <message>
        <source>This app stays</source>
        <translation>Diese App bleibt</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Kopiert</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy the command</source>
        <translation>Den Befehl kopieren</translation>
    </message>
</context>
<context>
    <name>ReviewTable</name>
    <message>
        <source>CATEGORY</source>
        <translation>KATEGORIE</translation>
    </message>
    <message>
        <source>Categories found</source>
        <translation>Gefundene Kategorien</translation>
    </message>
</context>
<context>
    <name>RootRunSheet</name>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>What it printed</source>
        <translation>Ausgabe</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Stop Waiting</source>
        <translation>Nicht mehr warten</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Ausführen</translation>
    </message>
</context>
<context>
    <name>ScanPreview</name>
    <message>
        <source>WHAT A SCAN LOOKS AT</source>
        <translation>WAS EIN SCAN PRÜFT</translation>
    </message>
    <message>
        <source>Nothing is deleted by a scan. Items move to the Trash, never straight to permanent deletion, and system folders are refused outright.</source>
        <translation>Ein Scan löscht nichts. Entferntes kommt in den Papierkorb und wird nie sofort endgültig gelöscht. Systemordner sind ausgenommen.</translation>
    </message>
</context>
<context>
    <name>ScanProgressBar</name>
    <message>
        <source>Scan progress</source>
        <translation>Fortschritt des Scans</translation>
    </message>
</context>
<context>
    <name>ScanningTable</name>
    <message>
        <source>FOUND SO FAR</source>
        <translation>BISHER GEFUNDEN</translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>Suche löschen</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Updates</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
</context>
<context>
    <name>Shell</name>
    <message>
        <source>Settings…</source>
        <translation>Einstellungen …</translation>
    </message>
    <message>
        <source>Full Disk Access granted</source>
        <translation>Festplattenvollzugriff erlaubt</translation>
    </message>
    <message>
        <source>One permission to set up</source>
        <translation>Eine Erlaubnis fehlt noch</translation>
    </message>
    <message>
        <source>Klarvik can measure every location Storage settings keeps out of sight.</source>
        <translation>Klarvik kann alles messen, was die Speichereinstellungen nicht zeigen.</translation>
    </message>
    <message>
        <source>macOS keeps caches, logs and backups behind Full Disk Access. Without it, some categories will show 0 bytes.</source>
        <translation>macOS schützt Caches, Protokolle und Backups durch den Festplattenvollzugriff. Ohne ihn zeigen manche Kategorien 0 Byte.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Skip for now</source>
        <translation>Vorerst überspringen</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Nach Updates suchen …</translation>
    </message>
    <message>
        <source>%1 full</source>
        <translation>%1 belegt</translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1 Objekt</translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%n Objekt</numerusform>
            <numerusform>%n Objekte</numerusform>
        </translation>
    </message>
    <message>
        <source>Emptying…</source>
        <translation>Wird geleert …</translation>
    </message>
    <message>
        <source>Emptying %1 of %2</source>
        <translation>Leere %1 von %2</translation>
    </message>
    <message>
        <source>Empty</source>
        <comment>the Trash is</comment>
        <translation>Leer</translation>
    </message>
    <message>
        <source>%1 · measuring…</source>
        <translation>%1 · misst …</translation>
    </message>
    <message>
        <source>macOS keeps the Trash behind Full Disk Access</source>
        <translation>macOS schützt den Papierkorb durch den Festplattenvollzugriff</translation>
    </message>
    <message>
        <source>Delete everything in the Trash and reclaim %1</source>
        <translation>Alles im Papierkorb löschen und %1 gewinnen</translation>
    </message>
    <message>
        <source>%1 · %2. This cannot be undone.</source>
        <translation>%1 · %2. Das lässt sich nicht widerrufen.</translation>
    </message>
    <message>
        <source>Grant</source>
        <translation>Erlauben</translation>
    </message>
    <message>
        <source>Empty</source>
        <comment>the button that empties the Trash</comment>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Your settings cannot be saved</source>
        <translation>Ihre Einstellungen können nicht gespeichert werden</translation>
    </message>
    <message>
        <source>Something was left as it was</source>
        <translation>Etwas blieb, wie es war</translation>
    </message>
    <message>
        <source>They hold until Klarvik quits. Is the disk full, or the folder of settings read-only?</source>
        <translation>Sie gelten, bis Klarvik beendet wird. Ist der Datenträger voll oder der Ordner der Einstellungen schreibgeschützt?</translation>
    </message>
    <message>
        <source>1 item moved to the Trash</source>
        <translation>1 Objekt in den Papierkorb gelegt</translation>
    </message>
    <message>
        <source>1 item is back where it was</source>
        <translation>1 Objekt ist wieder an seinem Ort</translation>
    </message>
    <message>
        <source>%1. The space is free once the Trash is emptied.</source>
        <translation>%1. Der Platz wird frei, wenn der Papierkorb geleert wird.</translation>
    </message>
    <message>
        <source>The others stay in the Trash: something stands in their places, or they have gone from it.</source>
        <translation>Die anderen bleiben im Papierkorb: An ihrem Ort steht etwas anderes, oder sie sind nicht mehr darin.</translation>
    </message>
    <message numerus="yes">
        <source>%n items moved to the Trash</source>
        <translation>
            <numerusform>%n Objekt in den Papierkorb gelegt</numerusform>
            <numerusform>%n Objekte in den Papierkorb gelegt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items are back where they were</source>
        <translation>
            <numerusform>%n Objekt ist wieder an seinem Ort</numerusform>
            <numerusform>%n Objekte sind wieder an ihrem Ort</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1” is uninstalled</source>
        <translation>„%1“ ist deinstalliert</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Klarvik menu</source>
        <translation>Klarvik-Menü</translation>
    </message>
</context>
<context>
    <name>SmartScan</name>
    <message>
        <source>Close %1 first.</source>
        <translation>Schließen Sie zuerst %1.</translation>
    </message>
    <message>
        <source>Cleaning…</source>
        <translation>Wird bereinigt …</translation>
    </message>
    <message numerus="yes">
        <source>%n still measuring</source>
        <translation>
            <numerusform>%n misst noch</numerusform>
            <numerusform>%n messen noch</numerusform>
        </translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>%1 öffnen</translation>
    </message>
    <message>
        <source>Copy the command: %1</source>
        <translation>Befehl kopieren: %1</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>Wird gescannt</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Scannen</translation>
    </message>
    <message>
        <source>Rescan</source>
        <translation>Erneut scannen</translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%n Objekt</numerusform>
            <numerusform>%n Objekte</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation>%1 gefunden</translation>
    </message>
    <message>
        <source>Last clean %1</source>
        <translation>Zuletzt bereinigt %1</translation>
    </message>
    <message>
        <source>Nothing scanned yet</source>
        <translation>Noch nichts gescannt</translation>
    </message>
    <message numerus="yes">
        <source>%n categories</source>
        <translation>
            <numerusform>%n Kategorie</numerusform>
            <numerusform>%n Kategorien</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Scanning %1 of %2 categories</source>
        <translation>
            <numerusform>Kategorie %1 von %2 wird gescannt</numerusform>
            <numerusform>Kategorie %1 von %2 wird gescannt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Show %n more</source>
        <translation>
            <numerusform>%n weiteres zeigen</numerusform>
            <numerusform>%n weitere zeigen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 selected · %n items</source>
        <translation>
            <numerusform>%1 ausgewählt · %n Objekt</numerusform>
            <numerusform>%1 ausgewählt · %n Objekte</numerusform>
        </translation>
    </message>
    <message>
        <source>Select something to clean.</source>
        <translation>Wählen Sie aus, was bereinigt werden soll.</translation>
    </message>
    <message>
        <source>Everything selected is marked Safe.</source>
        <translation>Alles davon gilt als sicher.</translation>
    </message>
    <message>
        <source>Your selection includes Review items.</source>
        <translation>Enthält zu prüfende Objekte.</translation>
    </message>
    <message>
        <source>Items move to the Trash.</source>
        <translation>Objekte kommen in den Papierkorb.</translation>
    </message>
    <message>
        <source>Items are removed for good.</source>
        <translation>Objekte werden endgültig entfernt.</translation>
    </message>
    <message>
        <source>%1 moves to the Trash, %2 is removed for good.</source>
        <translation>%1 in den Papierkorb, %2 endgültig gelöscht.</translation>
    </message>
    <message>
        <source>Used within the last day.</source>
        <translation>Innerhalb des letzten Tages benutzt.</translation>
    </message>
    <message>
        <source>%1 removes it for good.</source>
        <translation>%1 entfernt es endgültig.</translation>
    </message>
    <message>
        <source>Klarvik removes none of this itself.</source>
        <translation>Klarvik entfernt davon nichts selbst.</translation>
    </message>
    <message>
        <source>Klarvik never asks for your password. Run these in a terminal if you agree with them.</source>
        <translation>Klarvik fragt nie nach Ihrem Passwort. Führen Sie diese Befehle in einem Terminal aus, wenn Sie ihnen zustimmen.</translation>
    </message>
    <message>
        <source>Clean %1</source>
        <translation>%1 bereinigen</translation>
    </message>
    <message numerus="yes">
        <source>%n items moved to Trash</source>
        <translation>
            <numerusform>%n Objekt in den Papierkorb verschoben</numerusform>
            <numerusform>%n Objekte in den Papierkorb verschoben</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n removed for good</source>
        <translation>
            <numerusform>%n endgültig entfernt</numerusform>
            <numerusform>%n endgültig entfernt</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 free on disk — what went to the Trash takes its space until you empty it</source>
        <translation>%1 frei – was im Papierkorb liegt, belegt Platz, bis Sie ihn leeren</translation>
    </message>
    <message numerus="yes">
        <source>%n items removed</source>
        <translation>
            <numerusform>%n Objekt entfernt</numerusform>
            <numerusform>%n Objekte entfernt</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 free on disk</source>
        <translation>%1 frei</translation>
    </message>
    <message>
        <source>%1 free on disk — the Trash still holds this space until you empty it</source>
        <translation>%1 frei – der Papierkorb belegt diesen Platz noch, bis Sie ihn leeren</translation>
    </message>
    <message>
        <source>Run this command as administrator?</source>
        <translation>Diesen Befehl als Administrator ausführen?</translation>
    </message>
    <message>
        <source>The command runs</source>
        <translation>Der Befehl läuft</translation>
    </message>
    <message>
        <source>It is run exactly as it stands here. The system asks for the password; Klarvik never sees it.</source>
        <translation>Er wird genau so ausgeführt, wie er hier steht. Das System fragt nach dem Passwort; Klarvik sieht es nie.</translation>
    </message>
    <message>
        <source>The system may be asking for the password now.</source>
        <translation>Vielleicht fragt das System gerade nach dem Passwort.</translation>
    </message>
    <message>
        <source>Frees about %1 of %2: other files share the rest.</source>
        <translation>Gibt etwa %1 von %2 frei: Den Rest teilen sich andere Dateien.</translation>
    </message>
    <message>
        <source>The command has run</source>
        <translation>Der Befehl wurde ausgeführt</translation>
    </message>
    <message>
        <source>The command failed</source>
        <translation>Der Befehl ist fehlgeschlagen</translation>
    </message>
    <message>
        <source>The command is not waited for any more</source>
        <translation>Auf den Befehl wird nicht mehr gewartet</translation>
    </message>
    <message>
        <source>Nothing was run</source>
        <translation>Es wurde nichts ausgeführt</translation>
    </message>
    <message>
        <source>It ended well. What it has left is measured again.</source>
        <translation>Er endete ohne Fehler. Was er übrig gelassen hat, wird neu gemessen.</translation>
    </message>
    <message>
        <source>It ended with the error %1.</source>
        <translation>Er endete mit dem Fehler %1.</translation>
    </message>
    <message>
        <source>It was ended by the signal %1.</source>
        <translation>Er wurde durch das Signal %1 beendet.</translation>
    </message>
    <message>
        <source>The question for the password was cancelled.</source>
        <translation>Die Frage nach dem Passwort wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The program that asks for the password, pkexec, could not be started.</source>
        <translation>Das Programm pkexec, das nach dem Passwort fragt, ließ sich nicht starten.</translation>
    </message>
    <message>
        <source>If the password was given before, it may still be running by itself.</source>
        <translation>Wurde das Passwort schon eingegeben, läuft er vielleicht noch weiter.</translation>
    </message>
    <message>
        <source>It printed more than is shown here.</source>
        <translation>Die Ausgabe ist länger, als hier gezeigt wird.</translation>
    </message>
    <message>
        <source>The password was wrong, or the system allows it to nobody from here. The command can still be run in a terminal.</source>
        <translation>Das Passwort war falsch, oder das System erlaubt es von hier aus niemandem. Der Befehl lässt sich weiterhin in einem Terminal ausführen.</translation>
    </message>
    <message>
        <source>No program that asks for the password runs on this desktop. The command can still be run in a terminal.</source>
        <translation>Auf diesem Desktop läuft kein Programm, das nach dem Passwort fragt. Der Befehl lässt sich weiterhin in einem Terminal ausführen.</translation>
    </message>
    <message>
        <source>The service that decides about it, polkit, does not answer. The command can still be run in a terminal.</source>
        <translation>Der Dienst, der darüber entscheidet, polkit, antwortet nicht. Der Befehl lässt sich weiterhin in einem Terminal ausführen.</translation>
    </message>
    <message>
        <source>The command is not installed on this computer.</source>
        <translation>Der Befehl ist auf diesem Computer nicht installiert.</translation>
    </message>
</context>
<context>
    <name>SmartScanPane</name>
    <message>
        <source>Select safe only</source>
        <translation>Nur Sicheres auswählen</translation>
    </message>
    <message>
        <source>Nothing worth removing</source>
        <translation>Nichts zu entfernen</translation>
    </message>
    <message>
        <source>Klarvik found no junk in the places it looks.</source>
        <translation>Klarvik hat nichts Überflüssiges gefunden.</translation>
    </message>
    <message>
        <source>Your selection includes Review items</source>
        <translation>Ihre Auswahl enthält zu prüfende Objekte</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Clean anyway</source>
        <translation>Trotzdem bereinigen</translation>
    </message>
    <message>
        <source>Empty Trash</source>
        <translation>Papierkorb leeren</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>Storage</name>
    <message>
        <source>1 smaller thing</source>
        <translation>1 kleineres Objekt</translation>
    </message>
    <message numerus="yes">
        <source>%L1 smaller things</source>
        <translation>
            <numerusform>%L1 kleineres Objekt</numerusform>
            <numerusform>%L1 kleinere Objekte</numerusform>
        </translation>
    </message>
    <message>
        <source>Each takes less than the rows above</source>
        <translation>Jedes ist kleiner als die Zeilen darüber</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Reading folders: %1 so far</source>
        <translation>Ordner werden gelesen: bisher %1</translation>
    </message>
    <message>
        <source>Move “%1” to Trash?</source>
        <translation>„%1“ in den Papierkorb verschieben?</translation>
    </message>
    <message>
        <source>Measuring %1…</source>
        <translation>Messe %1 …</translation>
    </message>
    <message>
        <source>measured %1</source>
        <translation>gemessen %1</translation>
    </message>
    <message>
        <source>Re-measure</source>
        <translation>Neu messen</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>Messen</translation>
    </message>
    <message>
        <source>Nothing measured yet. Walking your folders takes about a minute and reads sizes only.</source>
        <translation>Noch nichts gemessen. Ihre Ordner zu durchlaufen dauert etwa eine Minute; gelesen werden nur Größen.</translation>
    </message>
    <message>
        <source>Nothing measured yet. Measuring reads Documents, Desktop and Downloads, which macOS guards separately, so Klarvik waits for you to ask. It reads sizes only.</source>
        <translation>Noch nichts gemessen. Gemessen werden Dokumente, Schreibtisch und Downloads, die macOS eigens schützt; darum wartet Klarvik, bis Sie es wünschen. Gelesen werden nur Größen.</translation>
    </message>
    <message>
        <source>Two scans are needed before growth means anything.</source>
        <translation>Um Wachstum zu zeigen, braucht es zwei Scans.</translation>
    </message>
    <message>
        <source>Nothing has grown since your first scan on record.</source>
        <translation>Seit dem ersten verzeichneten Scan ist nichts gewachsen.</translation>
    </message>
    <message>
        <source>Two cleans are needed before a trend means anything.</source>
        <translation>Um einen Verlauf zu zeigen, braucht es zwei Bereinigungen.</translation>
    </message>
    <message>
        <source>Nothing in here takes space, as far as you may look.</source>
        <translation>Hier belegt nichts Platz, soweit Sie hineinsehen dürfen.</translation>
    </message>
    <message>
        <source>This frees up to %1 once the Trash is emptied: some of it has another name, which may be elsewhere. Nothing is removed permanently.</source>
        <translation>Das gibt bis zu %1 frei, sobald der Papierkorb geleert wird: Manches davon hat einen weiteren Namen, der anderswo liegen kann. Endgültig gelöscht wird nichts.</translation>
    </message>
</context>
<context>
    <name>StorageAnalyticsView</name>
    <message>
        <source>Storage</source>
        <translation>Speicher</translation>
    </message>
    <message>
        <source>WHAT FILLS THE DISK</source>
        <translation>WAS DEN DATENTRÄGER FÜLLT</translation>
    </message>
    <message>
        <source>GROWING FASTEST</source>
        <translation>AM STÄRKSTEN GEWACHSEN</translation>
    </message>
    <message>
        <source>RECLAIMED PER CLEAN</source>
        <translation>GEWONNEN JE BEREINIGUNG</translation>
    </message>
</context>
<context>
    <name>SweepLoader</name>
    <message>
        <source>Working</source>
        <translation>In Arbeit</translation>
    </message>
</context>
<context>
    <name>SystemData</name>
    <message>
        <source>1 item</source>
        <translation>1 Objekt</translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%n Objekt</numerusform>
            <numerusform>%n Objekte</numerusform>
        </translation>
    </message>
    <message>
        <source>Re-analyse</source>
        <translation>Neu analysieren</translation>
    </message>
    <message>
        <source>Analyse</source>
        <translation>Analysieren</translation>
    </message>
    <message>
        <source>%1 Klarvik can remove</source>
        <translation>%1 kann Klarvik entfernen</translation>
    </message>
    <message>
        <source>%1 shown, never offered</source>
        <translation>%1 werden nur gezeigt</translation>
    </message>
    <message>
        <source>Select everything in %1</source>
        <translation>Alles unter „%1“ auswählen</translation>
    </message>
    <message>
        <source>Safe to remove</source>
        <translation>Sicher entfernbar</translation>
    </message>
    <message>
        <source>Review first</source>
        <translation>Erst prüfen</translation>
    </message>
    <message>
        <source>Shown, not offered</source>
        <translation>Nur gezeigt</translation>
    </message>
    <message>
        <source>Nothing selected</source>
        <translation>Nichts ausgewählt</translation>
    </message>
    <message>
        <source>%1 to Trash</source>
        <translation>%1 in den Papierkorb</translation>
    </message>
    <message>
        <source>Move 1 item to Trash?</source>
        <translation>1 Objekt in den Papierkorb verschieben?</translation>
    </message>
    <message numerus="yes">
        <source>Move %n items to Trash?</source>
        <translation>
            <numerusform>%n Objekt in den Papierkorb verschieben?</numerusform>
            <numerusform>%n Objekte in den Papierkorb verschieben?</numerusform>
        </translation>
    </message>
    <message>
        <source>1 item moved to Trash · %1</source>
        <translation>1 Objekt in den Papierkorb verschoben · %1</translation>
    </message>
    <message numerus="yes">
        <source>%n items moved to Trash · %1</source>
        <translation>
            <numerusform>%n Objekt in den Papierkorb verschoben · %1</numerusform>
            <numerusform>%n Objekte in den Papierkorb verschoben · %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The Trash still holds this space until you empty it.</source>
        <translation>Der Papierkorb belegt diesen Platz noch, bis Sie ihn leeren.</translation>
    </message>
    <message>
        <source>The space is back.</source>
        <translation>Der Platz ist wieder frei.</translation>
    </message>
</context>
<context>
    <name>SystemDataEmptyState</name>
    <message>
        <source>WHAT THE ANALYSIS WILL LOOK AT</source>
        <translation>WAS DIE ANALYSE PRÜFT</translation>
    </message>
    <message>
        <source>Walking these folders takes about 40 seconds, which is why it is not part of a normal scan. It reads sizes only — nothing is selected, moved or deleted until you say so.</source>
        <translation>Diese Ordner zu durchlaufen dauert etwa 40 Sekunden, darum gehört es nicht zum normalen Scan. Gelesen werden nur Größen – ausgewählt, verschoben oder gelöscht wird nichts, bis Sie es sagen.</translation>
    </message>
    <message>
        <source>System Data · after analysis</source>
        <translation>Systemdaten · nach der Analyse</translation>
    </message>
    <message>
        <source>Unknown until it is measured</source>
        <translation>Unbekannt bis zur Messung</translation>
    </message>
    <message>
        <source>Needs Full Disk Access</source>
        <translation>Braucht Festplattenvollzugriff</translation>
    </message>
    <message>
        <source>Not granted</source>
        <translation>Nicht erlaubt</translation>
    </message>
</context>
<context>
    <name>SystemDataFindings</name>
    <message>
        <source>Kinds of System Data</source>
        <translation>Arten von Systemdaten</translation>
    </message>
</context>
<context>
    <name>SystemDataRow</name>
    <message>
        <source>WHAT IT IS</source>
        <translation>WAS ES IST</translation>
    </message>
    <message>
        <source>STATUS</source>
        <translation>STATUS</translation>
    </message>
    <message>
        <source>SHARE</source>
        <translation>ANTEIL</translation>
    </message>
    <message>
        <source>SIZE</source>
        <translation>GRÖSSE</translation>
    </message>
</context>
<context>
    <name>SystemDataSummary</name>
    <message>
        <source>System Data</source>
        <translation>Systemdaten</translation>
    </message>
</context>
<context>
    <name>SystemDataView</name>
    <message>
        <source>Only rows marked Safe to remove or Review first can be selected. Everything goes to Trash.</source>
        <translation>Nur Sicheres und zu Prüfendes ist auswählbar. Alles kommt in den Papierkorb.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>In den Papierkorb</translation>
    </message>
    <message>
        <source>Empty Trash</source>
        <translation>Papierkorb leeren</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>TableHeader</name>
    <message>
        <source>SAFETY</source>
        <translation>EINSTUFUNG</translation>
    </message>
    <message>
        <source>ITEMS</source>
        <translation>OBJEKTE</translation>
    </message>
    <message>
        <source>SIZE</source>
        <translation>GRÖSSE</translation>
    </message>
</context>
<context>
    <name>ToolFooter</name>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
</context>
<context>
    <name>Tools</name>
    <message numerus="yes">
        <source>%1 of junk found in %n items</source>
        <translation>
            <numerusform>%1 Überflüssiges in %n Objekt gefunden</numerusform>
            <numerusform>%1 Überflüssiges in %n Objekten gefunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 reclaimable across %n extra copies</source>
        <translation>
            <numerusform>%1 löschbar in %n überzähligen Kopie</numerusform>
            <numerusform>%1 löschbar in %n überzähligen Kopien</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files over the size threshold, %1 in total</source>
        <translation>
            <numerusform>%n Datei über der Mindestgröße, insgesamt %1</numerusform>
            <numerusform>%n Dateien über der Mindestgröße, insgesamt %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n apps installed, %1 on disk</source>
        <translation>
            <numerusform>%n App installiert, belegt %1</numerusform>
            <numerusform>%n Apps installiert, belegen %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n trails, %1</source>
        <translation>
            <numerusform>%n Spur, %1</numerusform>
            <numerusform>%n Spuren, %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TrailTable</name>
    <message>
        <source>Trails found</source>
        <translation>Gefundene Spuren</translation>
    </message>
</context>
<context>
    <name>TrashBlock</name>
    <message>
        <source>Trash</source>
        <translation>Papierkorb</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Scan Now</source>
        <translation>Jetzt scannen</translation>
    </message>
    <message>
        <source>Open Klarvik</source>
        <translation>Klarvik öffnen</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message numerus="yes">
        <source>%n more categories</source>
        <translation>
            <numerusform>%n weitere Kategorie</numerusform>
            <numerusform>%n weitere Kategorien</numerusform>
        </translation>
    </message>
    <message>
        <source>Emptying Trash…</source>
        <translation>Papierkorb wird geleert …</translation>
    </message>
    <message>
        <source>Empty Trash · %1</source>
        <translation>Papierkorb leeren · %1</translation>
    </message>
    <message>
        <source>Trash is empty</source>
        <translation>Papierkorb ist leer</translation>
    </message>
</context>
<context>
    <name>Uninstaller</name>
    <message>
        <source>Uninstaller</source>
        <translation>Deinstallieren</translation>
    </message>
    <message>
        <source>Waiting for the disk</source>
        <translation>Warte auf den Datenträger</translation>
    </message>
    <message>
        <source>Another tool is measuring. Open this pane and Klarvik reads your applications straight away.</source>
        <translation>Ein anderes Werkzeug misst gerade. Öffnen Sie diesen Bereich, und Klarvik liest Ihre Apps sofort.</translation>
    </message>
    <message>
        <source>Reading applications</source>
        <translation>Apps werden gelesen</translation>
    </message>
    <message>
        <source>No apps</source>
        <translation>Keine Apps</translation>
    </message>
    <message>
        <source>No apps match</source>
        <translation>Keine passenden Apps</translation>
    </message>
    <message>
        <source>Looking for leftovers</source>
        <translation>Reste werden gesucht</translation>
    </message>
    <message>
        <source>No leftovers</source>
        <translation>Keine Reste</translation>
    </message>
    <message numerus="yes">
        <source>%n apps</source>
        <translation>
            <numerusform>%n App</numerusform>
            <numerusform>%n Apps</numerusform>
        </translation>
    </message>
    <message>
        <source>Waiting for another tool to finish measuring</source>
        <translation>Warte, bis ein anderes Werkzeug fertig gemessen hat</translation>
    </message>
    <message numerus="yes">
        <source>%n leftovers found · %1 total</source>
        <translation>
            <numerusform>%n Rest gefunden · insgesamt %1</numerusform>
            <numerusform>%n Reste gefunden · insgesamt %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Uninstall %1</source>
        <translation>%1 deinstallieren</translation>
    </message>
    <message>
        <source>Settings and licence keys</source>
        <translation>Einstellungen und Lizenzschlüssel</translation>
    </message>
    <message>
        <source>Rebuilt on next launch</source>
        <translation>Entsteht beim nächsten Start neu</translation>
    </message>
    <message>
        <source>Documents and unsynced data</source>
        <translation>Dokumente, eigene Daten</translation>
    </message>
    <message>
        <source>Diagnostics only</source>
        <translation>Nur zur Fehlersuche</translation>
    </message>
    <message>
        <source>Sandboxed app data</source>
        <translation>Daten der App in ihrer Sandbox</translation>
    </message>
    <message>
        <source>Window positions</source>
        <translation>Fensterpositionen</translation>
    </message>
    <message>
        <source>Review before removing</source>
        <translation>Vor dem Entfernen prüfen</translation>
    </message>
    <message>
        <source>%1 has not left anything behind that Klarvik can attribute to it.</source>
        <translation>%1 hat nichts hinterlassen, was Klarvik der App zuordnen kann.</translation>
    </message>
    <message>
        <source>Nothing matches “%1”</source>
        <translation>Nichts passt zu „%1“</translation>
    </message>
    <message numerus="yes">
        <source>%1 selected · %2 of %n leftovers</source>
        <translation>
            <numerusform>%1 ausgewählt · %2 von %n Rest</numerusform>
            <numerusform>%1 ausgewählt · %2 von %n Resten</numerusform>
        </translation>
    </message>
    <message>
        <source>Preferences and app data left behind on purpose. Everything goes to Trash.</source>
        <translation>Einstellungen und App-Daten bleiben absichtlich. Der Rest kommt in den Papierkorb.</translation>
    </message>
    <message>
        <source>Everything goes to Trash, so it can be put back.</source>
        <translation>Alles kommt in den Papierkorb und lässt sich zurücklegen.</translation>
    </message>
    <message>
        <source>Installed by hand</source>
        <translation>Von Hand installiert</translation>
    </message>
    <message>
        <source>Package</source>
        <translation>Paket</translation>
    </message>
    <message>
        <source>For all users</source>
        <translation>Für alle Benutzer</translation>
    </message>
    <message>
        <source>The app and what is selected go to the Trash, and can be put back.</source>
        <translation>App und Auswahl kommen wiederherstellbar in den Papierkorb.</translation>
    </message>
    <message>
        <source>snapd removes the app, and keeps a snapshot of its data for 31 days.</source>
        <translation>snapd entfernt die App und behält ihre Daten 31 Tage lang.</translation>
    </message>
    <message>
        <source>Flatpak removes the app. Selected leftovers go to the Trash, and can be put back.</source>
        <translation>Flatpak entfernt die App. Gewählte Reste kommen in den Papierkorb.</translation>
    </message>
    <message>
        <source>The app stays. Selected leftovers go to the Trash, and can be put back.</source>
        <translation>Die App bleibt. Gewählte Reste kommen in den Papierkorb.</translation>
    </message>
    <message>
        <source>Move Leftovers to Trash</source>
        <translation>Reste in den Papierkorb</translation>
    </message>
    <message>
        <source>Klarvik does not remove packages. Run this in a terminal if you agree with it.</source>
        <translation>Klarvik entfernt keine Pakete. Führen Sie dies in einem Terminal aus, wenn Sie zustimmen.</translation>
    </message>
    <message>
        <source>What else it removes is not known.</source>
        <translation>Was es sonst noch entfernt, ist nicht bekannt.</translation>
    </message>
    <message>
        <source>It removes no other package.</source>
        <translation>Es entfernt kein weiteres Paket.</translation>
    </message>
    <message>
        <source>It also removes %1.</source>
        <translation>Es entfernt auch %1.</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 und %n weiteres</numerusform>
            <numerusform>%1 und %n weitere</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>It also removes %n packages: %1.</source>
        <translation>
            <numerusform>Es entfernt auch %n Paket: %1.</numerusform>
            <numerusform>Es entfernt auch %n Pakete: %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>No other package needs it.</source>
        <translation>Kein anderes Paket braucht es.</translation>
    </message>
    <message>
        <source>What no package needs then may go as well.</source>
        <translation>Was danach kein Paket mehr braucht, wird womöglich mit entfernt.</translation>
    </message>
</context>
<context>
    <name>UpdateSettingsView</name>
    <message>
        <source>Updates</source>
        <translation>Updates</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Check automatically</source>
        <translation>Automatisch suchen</translation>
    </message>
    <message>
        <source>Klarvik checks for new versions in the background</source>
        <translation>Klarvik sucht im Hintergrund nach neuen Versionen</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Neuerungen</translation>
    </message>
</context>
<context>
    <name>UpdateWindow</name>
    <message>
        <source>Software Update</source>
        <translation>Softwareaktualisierung</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Neuerungen</translation>
    </message>
</context>
<context>
    <name>Updates</name>
    <message>
        <source>Version %1 available</source>
        <translation>Version %1 verfügbar</translation>
    </message>
    <message>
        <source>Could not check</source>
        <translation>Suche nicht möglich</translation>
    </message>
    <message>
        <source>Not checked yet</source>
        <translation>Noch nicht gesucht</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>Wird gesucht …</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Auf dem neuesten Stand</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installieren</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Jetzt suchen</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Suche nach Updates …</translation>
    </message>
    <message>
        <source>You have Klarvik %1.</source>
        <translation>Sie haben Klarvik %1.</translation>
    </message>
    <message>
        <source>Klarvik %1 is available</source>
        <translation>Klarvik %1 ist verfügbar</translation>
    </message>
    <message>
        <source>You have %1. The download is %2.</source>
        <translation>Sie haben %1. Der Download umfasst %2.</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Später</translation>
    </message>
    <message>
        <source>Downloading Klarvik %1…</source>
        <translation>Klarvik %1 wird geladen …</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Checking Klarvik %1…</source>
        <translation>Klarvik %1 wird geprüft …</translation>
    </message>
    <message>
        <source>Only what the makers of Klarvik have signed is accepted.</source>
        <translation>Angenommen wird nur, was die Hersteller von Klarvik signiert haben.</translation>
    </message>
    <message>
        <source>Klarvik %1 is ready to install</source>
        <translation>Klarvik %1 kann installiert werden</translation>
    </message>
    <message>
        <source>%1 is in your Downloads folder.</source>
        <translation>%1 liegt in Ihrem Download-Ordner.</translation>
    </message>
    <message>
        <source>Open Installer</source>
        <translation>Installation öffnen</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Klarvik is up to date</source>
        <translation>Klarvik ist auf dem neuesten Stand</translation>
    </message>
    <message>
        <source>%1 is the newest version.</source>
        <translation>%1 ist die neueste Version.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Could not check for updates</source>
        <translation>Suche nach Updates nicht möglich</translation>
    </message>
    <message>
        <source>The update cannot be installed</source>
        <translation>Das Update kann nicht installiert werden</translation>
    </message>
    <message>
        <source>The update server timed out.</source>
        <translation>Der Update-Server hat nicht rechtzeitig geantwortet.</translation>
    </message>
    <message>
        <source>No internet connection.</source>
        <translation>Keine Internetverbindung.</translation>
    </message>
    <message>
        <source>The update feed is missing or malformed.</source>
        <translation>Die Update-Liste fehlt oder ist fehlerhaft.</translation>
    </message>
    <message>
        <source>Could not reach the update server.</source>
        <translation>Der Update-Server ist nicht erreichbar.</translation>
    </message>
    <message>
        <source>A check is already running.</source>
        <translation>Es wird bereits gesucht.</translation>
    </message>
    <message>
        <source>Never checked</source>
        <translation>Noch nie gesucht</translation>
    </message>
    <message>
        <source>Checked %1</source>
        <translation>Gesucht %1</translation>
    </message>
    <message>
        <source>not configured</source>
        <translation>nicht eingerichtet</translation>
    </message>
</context>
<context>
    <name>WelcomePage</name>
    <message>
        <source>Every item is labelled Safe or Review before anything moves.</source>
        <translation>Alles ist zuvor als „Sicher“ oder „Prüfen“ markiert.</translation>
    </message>
    <message>
        <source>Removals go to the Trash, so anything can be put back.</source>
        <translation>Entferntes lässt sich aus dem Papierkorb zurücklegen.</translation>
    </message>
</context>
</TS>
