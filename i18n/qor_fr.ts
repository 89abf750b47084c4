<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>AboutPage</name>
    <message>
        <source>HOW TO USE THE GUIDEBOOK</source>
        <translation>COMMENT UTILISER LE GUIDE</translation>
    </message>
    <message>
        <source>Data pack</source>
        <translation>Paquet de données</translation>
    </message>
    <message>
        <source>Edition</source>
        <translation>Édition</translation>
    </message>
    <message>
        <source>none found</source>
        <translation>introuvable</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Données</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Send Feedback</source>
        <translation>Envoyer un commentaire</translation>
    </message>
    <message>
        <source>Sources</source>
        <translation>Sources</translation>
    </message>
    <message>
        <source>Used for: %1</source>
        <translation>Utilisé pour : %1</translation>
    </message>
    <message>
        <source>Not used by this pack&apos;s content</source>
        <translation>Non utilisé par le contenu de ce paquet</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apparence</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Système</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
</context>
<context>
    <name>BarHeader</name>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
</context>
<context>
    <name>DetailRows</name>
    <message>
        <source>About %1</source>
        <translation>À propos de %1</translation>
    </message>
    <message>
        <source>Hazard Class</source>
        <translation>Classe de danger</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Show less</source>
        <translation>Afficher moins</translation>
    </message>
    <message>
        <source>Show all %1 statements</source>
        <translation>Afficher les %1 mentions</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Détails</translation>
    </message>
</context>
<context>
    <name>FilterPage</name>
    <message>
        <source>Filter Materials</source>
        <translation>Filtrer les matières</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Materials with Incidents</source>
        <translation>Matières avec incidents</translation>
    </message>
</context>
<context>
    <name>GuideListPage</name>
    <message>
        <source>Guides</source>
        <translation>Guides</translation>
    </message>
    <message>
        <source>Guide</source>
        <translation>Guide</translation>
    </message>
</context>
<context>
    <name>GuidePage</name>
    <message>
        <source>Full screen</source>
        <translation>Plein écran</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Partager</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Leave full screen</source>
        <translation>Quitter le plein écran</translation>
    </message>
    <message>
        <source>Widen the window to see the isolation distances beside the guide.</source>
        <translation>Élargissez la fenêtre pour voir les distances d&apos;isolement à côté du guide.</translation>
    </message>
    <message>
        <source>Widen the window for a landscape view of the guide.</source>
        <translation>Élargissez la fenêtre pour afficher le guide en mode paysage.</translation>
    </message>
</context>
<context>
    <name>HistoryPage</name>
    <message>
        <source>Clear History</source>
        <translation>Effacer l&apos;historique</translation>
    </message>
</context>
<context>
    <name>InfoPage</name>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
</context>
<context>
    <name>IsolationPage</name>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Isolation Distances</source>
        <translation>Distances d&apos;isolement</translation>
    </message>
    <message>
        <source>About isolation distances</source>
        <translation>À propos des distances d&apos;isolement</translation>
    </message>
</context>
<context>
    <name>IsolationTable</name>
    <message>
        <source>Protective action zone</source>
        <translation>Zone de mesures de protection</translation>
    </message>
    <message>
        <source>Small spill</source>
        <translation>Petit déversement</translation>
    </message>
    <message>
        <source>Large spill</source>
        <translation>Grand déversement</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Jour</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Nuit</translation>
    </message>
    <message>
        <source>Wind direction compass</source>
        <translation>Rose des vents</translation>
    </message>
    <message>
        <source>Wind from (degrees)</source>
        <translation>Vent venant de (degrés)</translation>
    </message>
    <message>
        <source>Save incident sheet (PDF)</source>
        <translation>Enregistrer la fiche d&apos;incident (PDF)</translation>
    </message>
    <message>
        <source>Open to print</source>
        <translation>Ouvrir pour imprimer</translation>
    </message>
    <message>
        <source>ft/miles</source>
        <translation>pieds/milles</translation>
    </message>
    <message>
        <source>m/kms</source>
        <translation>m/km</translation>
    </message>
    <message>
        <source>Small Spill</source>
        <translation>Petit déversement</translation>
    </message>
    <message>
        <source>Large Spill</source>
        <translation>Grand déversement</translation>
    </message>
    <message>
        <source>First ISOLATE in all Directions for :</source>
        <translation>D&apos;abord ISOLER dans toutes les directions sur :</translation>
    </message>
    <message>
        <source>Then protect persons Downwind</source>
        <translation>Puis protéger les personnes sous le vent</translation>
    </message>
    <message>
        <source>(Day) :</source>
        <translation>(Jour) :</translation>
    </message>
    <message>
        <source>(Night) :</source>
        <translation>(Nuit) :</translation>
    </message>
    <message>
        <source>(Day)</source>
        <translation>(Jour)</translation>
    </message>
    <message>
        <source>(Night)</source>
        <translation>(Nuit)</translation>
    </message>
    <message>
        <source>Isolation Distances</source>
        <translation>Distances d&apos;isolement</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>QOR</source>
        <translation>QOR</translation>
    </message>
    <message>
        <source>Materials</source>
        <translation>Matières</translation>
    </message>
    <message>
        <source>Guides</source>
        <translation>Guides</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Référence</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Choose a material</source>
        <translation>Choisissez une matière</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
</context>
<context>
    <name>MaterialDetailPage</name>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
    <message>
        <source>Shipping</source>
        <translation>Expédition</translation>
    </message>
    <message>
        <source>Protection</source>
        <translation>Protection</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Détails</translation>
    </message>
</context>
<context>
    <name>MaterialListPage</name>
    <message>
        <source>Choose category</source>
        <translation>Choisir la catégorie</translation>
    </message>
    <message>
        <source>Filter materials</source>
        <translation>Filtrer les matières</translation>
    </message>
    <message>
        <source>Change sort order</source>
        <translation>Changer l&apos;ordre de tri</translation>
    </message>
    <message>
        <source>Did you mean</source>
        <translation>Vouliez-vous dire</translation>
    </message>
    <message>
        <source>Guide</source>
        <translation>Guide</translation>
    </message>
    <message>
        <source>Suggestion</source>
        <translation>Suggestion</translation>
    </message>
    <message>
        <source>Section index</source>
        <translation>Index des sections</translation>
    </message>
</context>
<context>
    <name>PageHost</name>
    <message>
        <source>Page text</source>
        <translation>Texte de la page</translation>
    </message>
</context>
<context>
    <name>PlacardsPage</name>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>%1, guide %2</source>
        <translation>%1, guide %2</translation>
    </message>
</context>
<context>
    <name>QOR</name>
    <message>
        <source>All Materials</source>
        <translation>Toutes les matières</translation>
    </message>
    <message>
        <source>Toxic Inhalation Hazard</source>
        <translation>Toxique par inhalation</translation>
    </message>
    <message>
        <source>TIH - Common</source>
        <translation>TIH - Courants</translation>
    </message>
    <message>
        <source>Meth Lab</source>
        <translation>Laboratoire de méthamphétamine</translation>
    </message>
    <message>
        <source>Water Reactive</source>
        <translation>Hydroréactives</translation>
    </message>
    <message>
        <source>Polymerizing</source>
        <translation>Polymérisables</translation>
    </message>
    <message>
        <source> Loading...</source>
        <translation> Chargement...</translation>
    </message>
    <message>
        <source>Materials</source>
        <translation>Matières</translation>
    </message>
    <message>
        <source>Chemical Warfare</source>
        <translation>Guerre chimique</translation>
    </message>
    <message>
        <source>Exposure Routes</source>
        <translation>Voies d&apos;exposition</translation>
    </message>
    <message>
        <source>Symptoms</source>
        <translation>Symptômes</translation>
    </message>
    <message>
        <source>Target Organs</source>
        <translation>Organes cibles</translation>
    </message>
    <message>
        <source>Personal Protection</source>
        <translation>Protection individuelle</translation>
    </message>
    <message>
        <source>First Aid</source>
        <translation>Premiers secours</translation>
    </message>
    <message>
        <source>Exposure:</source>
        <translation>Exposition :</translation>
    </message>
    <message>
        <source>Packing Group:</source>
        <translation>Groupe d&apos;emballage :</translation>
    </message>
    <message>
        <source>Special Provisions:</source>
        <translation>Dispositions spéciales :</translation>
    </message>
    <message>
        <source>Non-Bulk Packaging:</source>
        <translation>Emballage non en vrac :</translation>
    </message>
    <message>
        <source>Bulk Packaging:</source>
        <translation>Emballage en vrac :</translation>
    </message>
    <message>
        <source>Qty Limit Passenger Air/Rail:</source>
        <translation>Quantité max. avion/train de passagers :</translation>
    </message>
    <message>
        <source>Qty Limit Air Cargo:</source>
        <translation>Quantité max. avion cargo :</translation>
    </message>
    <message>
        <source>Vessel Stowage Location:</source>
        <translation>Emplacement d&apos;arrimage à bord :</translation>
    </message>
    <message>
        <source>Great Danger</source>
        <translation>Danger grave</translation>
    </message>
    <message>
        <source>Medium Danger</source>
        <translation>Danger moyen</translation>
    </message>
    <message>
        <source>Minor Danger</source>
        <translation>Danger mineur</translation>
    </message>
    <message>
        <source>Explosives with a mass explosion hazard.</source>
        <translation>Explosifs présentant un risque d&apos;explosion en masse.</translation>
    </message>
    <message>
        <source>Explosives with a blast/projection hazard.</source>
        <translation>Explosifs présentant un risque de projection.</translation>
    </message>
    <message>
        <source>Explosives with a minor blast hazard.</source>
        <translation>Explosifs présentant un risque mineur d&apos;explosion.</translation>
    </message>
    <message>
        <source>Explosives with a major fire hazard.</source>
        <translation>Explosifs présentant un risque majeur d&apos;incendie.</translation>
    </message>
    <message>
        <source>Blasting agents.</source>
        <translation>Agents de sautage.</translation>
    </message>
    <message>
        <source>Extremely insensitive explosives.</source>
        <translation>Explosifs extrêmement peu sensibles.</translation>
    </message>
    <message>
        <source>Flammable Gas</source>
        <translation>Gaz inflammable</translation>
    </message>
    <message>
        <source>Non-Flammable Gases</source>
        <translation>Gaz non inflammables</translation>
    </message>
    <message>
        <source>Poisonous Gases</source>
        <translation>Gaz toxiques</translation>
    </message>
    <message>
        <source>Flammable Liquids</source>
        <translation>Liquides inflammables</translation>
    </message>
    <message>
        <source>Flammable Solids</source>
        <translation>Solides inflammables</translation>
    </message>
    <message>
        <source>Spontaneously Combustible Solids</source>
        <translation>Solides spontanément inflammables</translation>
    </message>
    <message>
        <source>Dangerous when Wet</source>
        <translation>Dangereux au contact de l&apos;eau</translation>
    </message>
    <message>
        <source>Oxidizing Agent</source>
        <translation>Comburant</translation>
    </message>
    <message>
        <source>Organic Peroxide Oxidizing Agent</source>
        <translation>Peroxyde organique comburant</translation>
    </message>
    <message>
        <source>Toxic and Infectious Substances</source>
        <translation>Matières toxiques et infectieuses</translation>
    </message>
    <message>
        <source>Poison</source>
        <translation>Toxique</translation>
    </message>
    <message>
        <source>Poison Inhalation Hazard</source>
        <translation>Toxique par inhalation</translation>
    </message>
    <message>
        <source>Biohazard</source>
        <translation>Danger biologique</translation>
    </message>
    <message>
        <source>Radioactive Substances </source>
        <translation>Matières radioactives </translation>
    </message>
    <message>
        <source>Corrosive Substances</source>
        <translation>Matières corrosives</translation>
    </message>
    <message>
        <source>Corrosive Substances: Acids</source>
        <translation>Matières corrosives : acides</translation>
    </message>
    <message>
        <source>Corrosive Substances Alkalis</source>
        <translation>Matières corrosives : bases</translation>
    </message>
    <message>
        <source>Miscellaneous</source>
        <translation>Divers</translation>
    </message>
    <message>
        <source>WATER REACTIVE MATERIAL</source>
        <translation>MATIÈRE HYDRORÉACTIVE</translation>
    </message>
    <message>
        <source>CHEMICAL WARFARE AGENT</source>
        <translation>AGENT DE GUERRE CHIMIQUE</translation>
    </message>
    <message>
        <source>TOXIC INHALATION HAZARD</source>
        <translation>TOXIQUE PAR INHALATION</translation>
    </message>
    <message>
        <source>default</source>
        <translation>par défaut</translation>
    </message>
    <message>
        <source>Sample data — not for operational use</source>
        <translation>Données d&apos;exemple — ne pas utiliser en intervention</translation>
    </message>
    <message>
        <source>QOR Materials</source>
        <translation>Matières QOR</translation>
    </message>
    <message>
        <source>Tables</source>
        <translation>Tableaux</translation>
    </message>
    <message>
        <source>Resources</source>
        <translation>Ressources</translation>
    </message>
    <message>
        <source>Identification and Response</source>
        <translation>Identification et intervention</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Actions</translation>
    </message>
    <message>
        <source>Emergency Response Phone Numbers</source>
        <translation>Numéros d&apos;urgence</translation>
    </message>
    <message>
        <source>Emergency</source>
        <translation>Urgence</translation>
    </message>
    <message>
        <source>CRIMINAL/TERRORIST USE OF CHEMICAL/BIOLOGICAL/RADIOLOGICAL AGENTS</source>
        <translation>UTILISATION CRIMINELLE/TERRORISTE D&apos;AGENTS CHIMIQUES/BIOLOGIQUES/RADIOLOGIQUES</translation>
    </message>
    <message>
        <source>CRIMINAL/TERRORIST USE</source>
        <translation>UTILISATION CRIMINELLE/TERRORISTE</translation>
    </message>
    <message>
        <source>BLEVE and Heat Induced Tear</source>
        <translation>BLEVE et rupture due à la chaleur</translation>
    </message>
    <message>
        <source>IED Safe Stand Off Distance</source>
        <translation>Distance de sécurité face à un engin explosif improvisé</translation>
    </message>
    <message>
        <source>IED</source>
        <translation>EEI</translation>
    </message>
    <message>
        <source>Glossary</source>
        <translation>Glossaire</translation>
    </message>
    <message>
        <source>HOW TO USE THE GUIDEBOOK</source>
        <translation>COMMENT UTILISER LE GUIDE</translation>
    </message>
    <message>
        <source>SHIPPING DOCUMENTS (PAPERS)</source>
        <translation>DOCUMENTS D&apos;EXPÉDITION</translation>
    </message>
    <message>
        <source>SHIPPING</source>
        <translation>EXPÉDITION</translation>
    </message>
    <message>
        <source>PROTECTIVE CLOTHING</source>
        <translation>VÊTEMENTS DE PROTECTION</translation>
    </message>
    <message>
        <source>Decontamination</source>
        <translation>Décontamination</translation>
    </message>
    <message>
        <source>HAZARD CLASSIFICATION SYSTEM</source>
        <translation>SYSTÈME DE CLASSIFICATION DES DANGERS</translation>
    </message>
    <message>
        <source>TABLE OF MARKINGS, LABELS AND PLACARDS</source>
        <translation>TABLEAU DES MARQUES, ÉTIQUETTES ET PLAQUES</translation>
    </message>
    <message>
        <source>Placards</source>
        <translation>Plaques</translation>
    </message>
    <message>
        <source>Pipeline Transportation</source>
        <translation>Transport par pipeline</translation>
    </message>
    <message>
        <source>Pipelines</source>
        <translation>Pipelines</translation>
    </message>
    <message>
        <source>GLOBALLY HARMONIZED SYSTEM OF CLASSIFICATION AND LABELING OF CHEMICALS (GHS)</source>
        <translation>SYSTÈME GÉNÉRAL HARMONISÉ DE CLASSIFICATION ET D&apos;ÉTIQUETAGE DES PRODUITS CHIMIQUES (SGH)</translation>
    </message>
    <message>
        <source>GHS</source>
        <translation>SGH</translation>
    </message>
    <message>
        <source>RAIL CAR IDENTIFICATION CHART</source>
        <translation>TABLEAU D&apos;IDENTIFICATION DES WAGONS</translation>
    </message>
    <message>
        <source>Rail Cars</source>
        <translation>Wagons</translation>
    </message>
    <message>
        <source>ROAD TRAILER IDENTIFICATION CHART</source>
        <translation>TABLEAU D&apos;IDENTIFICATION DES REMORQUES ROUTIÈRES</translation>
    </message>
    <message>
        <source>Road Trailers</source>
        <translation>Remorques</translation>
    </message>
    <message>
        <source>HAZARD IDENTIFICATION NUMBERS DISPLAYED ON SOME INTERMODAL CONTAINERS</source>
        <translation>NUMÉROS D&apos;IDENTIFICATION DU DANGER SUR CERTAINS CONTENEURS INTERMODAUX</translation>
    </message>
    <message>
        <source>Intermodal</source>
        <translation>Intermodal</translation>
    </message>
    <message>
        <source>Safety Precautions</source>
        <translation>Mesures de sécurité</translation>
    </message>
    <message>
        <source>Precautions</source>
        <translation>Précautions</translation>
    </message>
    <message>
        <source>Protective Actions</source>
        <translation>Mesures de protection</translation>
    </message>
    <message>
        <source>Protective Action Decision Factors to Consider</source>
        <translation>Facteurs de décision des mesures de protection</translation>
    </message>
    <message>
        <source>Protective Action</source>
        <translation>Mesure de protection</translation>
    </message>
    <message>
        <source>NOTIFICATION AND REQUEST FOR TECHNICAL INFORMATION</source>
        <translation>NOTIFICATION ET DEMANDE D&apos;INFORMATIONS TECHNIQUES</translation>
    </message>
    <message>
        <source>NOTIFICATION</source>
        <translation>NOTIFICATION</translation>
    </message>
    <message>
        <source>FIRE AND SPILL CONTROL</source>
        <translation>MAÎTRISE DES INCENDIES ET DES DÉVERSEMENTS</translation>
    </message>
    <message>
        <source>CONTROL</source>
        <translation>MAÎTRISE</translation>
    </message>
    <message>
        <source>CONSIDERATIONS FOR LITHIUM BATTERY AND ELECTRIC VEHICLE (EV) FIRES</source>
        <translation>CONSIDÉRATIONS POUR LES FEUX DE BATTERIES AU LITHIUM ET DE VÉHICULES ÉLECTRIQUES (VE)</translation>
    </message>
    <message>
        <source>LITHIUM BATTERY FIRES</source>
        <translation>FEUX DE BATTERIES AU LITHIUM</translation>
    </message>
    <message>
        <source>Aircraft Transportation</source>
        <translation>Transport aérien</translation>
    </message>
    <message>
        <source>Aircraft</source>
        <translation>Aéronefs</translation>
    </message>
    <message>
        <source>Bulk Packaging</source>
        <translation>Emballage en vrac</translation>
    </message>
    <message>
        <source>Intermediate Bulk Containers</source>
        <translation>Grands récipients pour vrac</translation>
    </message>
    <message>
        <source>IBC</source>
        <translation>GRV</translation>
    </message>
    <message>
        <source>Non-Bulk Packaging</source>
        <translation>Emballage non en vrac</translation>
    </message>
    <message>
        <source>IM and UN Specification Portable Tanks</source>
        <translation>Citernes mobiles IM et de spécification ONU</translation>
    </message>
    <message>
        <source>Portable Tanks</source>
        <translation>Citernes mobiles</translation>
    </message>
    <message>
        <source>UN Portable Tanks</source>
        <translation>Citernes mobiles ONU</translation>
    </message>
    <message>
        <source>Water Transportation</source>
        <translation>Transport maritime</translation>
    </message>
    <message>
        <source>Water transport</source>
        <translation>Transport maritime</translation>
    </message>
    <message>
        <source>Numeric Provisions</source>
        <translation>Dispositions numériques</translation>
    </message>
    <message>
        <source>%@ %d were considered serious.</source>
        <translation>%@ %d ont été jugés graves.</translation>
    </message>
    <message>
        <source>%@ %d involved bulk releases.</source>
        <translation>%@ %d ont impliqué des rejets en vrac.</translation>
    </message>
    <message>
        <source>%@ %d required an evacuation.</source>
        <translation>%@ %d ont nécessité une évacuation.</translation>
    </message>
    <message>
        <source>%@ %d had a fatality.</source>
        <translation>%@ %d ont causé un décès.</translation>
    </message>
    <message>
        <source>%@ %d occurred on a major artery.</source>
        <translation>%@ %d sont survenus sur un axe majeur.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Aujourd&apos;hui</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Hier</translation>
    </message>
    <message>
        <source>Last Sunday</source>
        <translation>Dimanche dernier</translation>
    </message>
    <message>
        <source>Last Monday</source>
        <translation>Lundi dernier</translation>
    </message>
    <message>
        <source>Last Tuesday</source>
        <translation>Mardi dernier</translation>
    </message>
    <message>
        <source>Last Wednesday</source>
        <translation>Mercredi dernier</translation>
    </message>
    <message>
        <source>Last Thursday</source>
        <translation>Jeudi dernier</translation>
    </message>
    <message>
        <source>Last Friday</source>
        <translation>Vendredi dernier</translation>
    </message>
    <message>
        <source>Last Saturday</source>
        <translation>Samedi dernier</translation>
    </message>
    <message>
        <source>1 year ago</source>
        <translation>il y a 1 an</translation>
    </message>
    <message>
        <source>%d years ago</source>
        <translation>il y a %d ans</translation>
    </message>
    <message>
        <source>1 month ago</source>
        <translation>il y a 1 mois</translation>
    </message>
    <message>
        <source>%d months ago</source>
        <translation>il y a %d mois</translation>
    </message>
    <message>
        <source>1 week ago</source>
        <translation>il y a 1 semaine</translation>
    </message>
    <message>
        <source>%d weeks ago</source>
        <translation>il y a %d semaines</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; couldn&apos;t be removed.</source>
        <translation>Le fichier « %1 » n&apos;a pas pu être supprimé.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; couldn&apos;t be saved.</source>
        <translation>Le fichier « %1 » n&apos;a pas pu être enregistré.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; couldn&apos;t be opened.</source>
        <translation>Le dossier « %1 » n&apos;a pas pu être ouvert.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; couldn&apos;t be opened.</source>
        <translation>Le fichier « %1 » n&apos;a pas pu être ouvert.</translation>
    </message>
    <message>
        <source>Unable to save data: %@</source>
        <translation>Impossible d&apos;enregistrer les données : %@</translation>
    </message>
    <message>
        <source>Unable to locate file %@</source>
        <translation>Fichier %@ introuvable</translation>
    </message>
    <message>
        <source>Error Message</source>
        <translation>Message d&apos;erreur</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>International Chemical Safety Card for %@</source>
        <translation>Fiche internationale de sécurité chimique : %@</translation>
    </message>
    <message>
        <source>NIOSH Pocket Guide for %@</source>
        <translation>Guide de poche NIOSH : %@</translation>
    </message>
    <message>
        <source>There were no incidents reported to the National Response Center (NRC) in the last 12 months</source>
        <translation>Aucun incident n&apos;a été signalé au National Response Center (NRC) au cours des 12 derniers mois</translation>
    </message>
    <message>
        <source>There was only one incident</source>
        <translation>Il n&apos;y a eu qu&apos;un seul incident</translation>
    </message>
    <message>
        <source>There were no incidents</source>
        <translation>Il n&apos;y a eu aucun incident</translation>
    </message>
    <message>
        <source>There were %d incidents</source>
        <translation>Il y a eu %d incidents</translation>
    </message>
    <message>
        <source>in the last %d months</source>
        <translation>au cours des %d derniers mois</translation>
    </message>
    <message>
        <source>%@ reported to the National Response Center (NRC) %@.</source>
        <translation>%@ signalés au National Response Center (NRC) %@.</translation>
    </message>
    <message>
        <source>49CFR § 173.%@ %@</source>
        <translation>49CFR § 173.%@ %@</translation>
    </message>
    <message>
        <source>Stowage category &quot;%@&quot; - %@</source>
        <translation>Catégorie d&apos;arrimage « %@ » - %@</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Reference data</source>
        <translation>Données de référence</translation>
    </message>
    <message>
        <source>All %1 files match their checksums</source>
        <translation>Les %1 fichiers correspondent à leurs sommes de contrôle</translation>
    </message>
    <message>
        <source>%1 of %2 files do not match their checksums</source>
        <translation>%1 fichiers sur %2 ne correspondent pas à leurs sommes de contrôle</translation>
    </message>
    <message>
        <source>No pack.json: the files cannot be checked</source>
        <translation>Pas de pack.json : impossible de vérifier les fichiers</translation>
    </message>
    <message>
        <source>Checking files…</source>
        <translation>Vérification des fichiers…</translation>
    </message>
    <message>
        <source>%1 (%2 %3)</source>
        <translation>%1 (%2 %3)</translation>
    </message>
    <message>
        <source>found</source>
        <translation>trouvés</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tout</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Récents</translation>
    </message>
    <message>
        <source>Most Viewed</source>
        <translation>Plus consultés</translation>
    </message>
    <message>
        <source>today</source>
        <translation>aujourd&apos;hui</translation>
    </message>
    <message>
        <source>%1 %2%3 ago</source>
        <translation>il y a %1 %2%3</translation>
    </message>
    <message>
        <source>day</source>
        <translation>jour</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>yesterday</source>
        <translation>hier</translation>
    </message>
    <message>
        <source>once</source>
        <translation>une fois</translation>
    </message>
    <message>
        <source>twice</source>
        <translation>deux fois</translation>
    </message>
    <message>
        <source>%1 %2%3</source>
        <translation>%1 %2%3</translation>
    </message>
    <message>
        <source>time</source>
        <translation>consultation</translation>
    </message>
    <message>
        <source>Search by UN Number</source>
        <translation>Rechercher par numéro ONU</translation>
    </message>
    <message>
        <source>Search by Name or UN Number</source>
        <translation>Rechercher par nom ou numéro ONU</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>search results</source>
        <translation>résultats de recherche</translation>
    </message>
    <message>
        <source> %1</source>
        <translation> %1</translation>
    </message>
    <message>
        <source>%1 %2 - %3</source>
        <translation>%1 %2 - %3</translation>
    </message>
    <message>
        <source>Guide</source>
        <translation>Guide</translation>
    </message>
    <message>
        <source>%1 Incident%2</source>
        <translation>%1 incident%2</translation>
    </message>
    <message>
        <source>ID Number Index (yellow pages)</source>
        <translation>Index par numéro d&apos;identification (pages jaunes)</translation>
    </message>
    <message>
        <source>Name of Material Index (blue pages)</source>
        <translation>Index par nom de matière (pages bleues)</translation>
    </message>
    <message>
        <source>[Table 1] Toxic Inhalation Hazard [TIH] Materials</source>
        <translation>[Tableau 1] Matières toxiques par inhalation [TIH]</translation>
    </message>
    <message>
        <source>[Table 2] Water-Reactive Materials which produce Toxic Gases</source>
        <translation>[Tableau 2] Matières hydroréactives qui dégagent des gaz toxiques</translation>
    </message>
    <message>
        <source>[Table 3] Commonly Encountered Toxic Inhalation Hazard Gases</source>
        <translation>[Tableau 3] Gaz toxiques par inhalation courants</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Référence</translation>
    </message>
    <message>
        <source>[Table %1]</source>
        <translation>[Tableau %1]</translation>
    </message>
    <message>
        <source>UN%1</source>
        <translation>ONU%1</translation>
    </message>
    <message>
        <source>The guidebook&apos;s index does not list UN%1; shown from the shipping table.</source>
        <translation>L&apos;index du guide ne répertorie pas ONU%1 ; affiché d&apos;après le tableau d&apos;expédition.</translation>
    </message>
    <message>
        <source>Guide: not in this data pack</source>
        <translation>Guide : absent de ce paquet de données</translation>
    </message>
    <message>
        <source>Guide of the index&apos;s row &quot;%1&quot;</source>
        <translation>Guide de la ligne « %1 » de l&apos;index</translation>
    </message>
    <message>
        <source>0 found</source>
        <translation>0 trouvé</translation>
    </message>
    <message>
        <source>Source: unknown (unverified data pack)</source>
        <translation>Source : inconnue (paquet de données non vérifié)</translation>
    </message>
    <message>
        <source>Source: not recorded in this data pack</source>
        <translation>Source : non enregistrée dans ce paquet de données</translation>
    </message>
    <message>
        <source>Source: %1</source>
        <translation>Source : %1</translation>
    </message>
    <message>
        <source>From a partial extract of %1 reports</source>
        <translation>D&apos;après un extrait partiel de %1 rapports</translation>
    </message>
    <message>
        <source>From a partial extract of %1 reports, %2 to %3</source>
        <translation>D&apos;après un extrait partiel de %1 rapports, du %2 au %3</translation>
    </message>
    <message>
        <source>Unverified data pack — sources unknown</source>
        <translation>Paquet de données non vérifié — sources inconnues</translation>
    </message>
    <message>
        <source>Rail Tank Car</source>
        <translation>Wagon-citerne</translation>
    </message>
    <message>
        <source>Highway Tank Car or Trailer</source>
        <translation>Camion-citerne ou remorque-citerne</translation>
    </message>
    <message>
        <source>Agricultural Nurse Tank</source>
        <translation>Réservoir nourrice agricole</translation>
    </message>
    <message>
        <source>Multiple Small Cylinders</source>
        <translation>Plusieurs petites bouteilles</translation>
    </message>
    <message>
        <source>Multiple ton cylinders</source>
        <translation>Plusieurs bouteilles d&apos;une tonne</translation>
    </message>
    <message>
        <source>Multiple Small Cylinders or single ton cylinder</source>
        <translation>Plusieurs petites bouteilles ou une seule bouteille d&apos;une tonne</translation>
    </message>
    <message>
        <source>%1: isolate %2 in all directions; protect downwind by day %3, by night %4</source>
        <translation>%1 : isoler %2 dans toutes les directions ; protéger sous le vent le jour %3, la nuit %4</translation>
    </message>
    <message>
        <source>Small spill</source>
        <translation>Petit déversement</translation>
    </message>
    <message>
        <source>Large spill</source>
        <translation>Grand déversement</translation>
    </message>
    <message>
        <source>low wind</source>
        <translation>vent faible</translation>
    </message>
    <message>
        <source>moderate wind</source>
        <translation>vent modéré</translation>
    </message>
    <message>
        <source>high wind</source>
        <translation>vent fort</translation>
    </message>
    <message>
        <source>Large spill, %1: isolate %2; by day %3; by night %4</source>
        <translation>Grand déversement, %1 : isoler %2 ; le jour %3 ; la nuit %4</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>Classe</translation>
    </message>
    <message>
        <source>not in this data pack</source>
        <translation>absent de ce paquet de données</translation>
    </message>
    <message>
        <source>Sheet made %1</source>
        <translation>Fiche établie le %1</translation>
    </message>
    <message>
        <source>Prepared by: %1</source>
        <translation>Préparée par : %1</translation>
    </message>
    <message>
        <source>Data pack: %1 (built %2)</source>
        <translation>Paquet de données : %1 (généré le %2)</translation>
    </message>
    <message>
        <source>Data pack: not identified (no pack.json)</source>
        <translation>Paquet de données : non identifié (pas de pack.json)</translation>
    </message>
    <message>
        <source>The zone figure is schematic, not a map. Check the guide and the current situation.</source>
        <translation>La figure de la zone est schématique, ce n&apos;est pas une carte. Vérifiez le guide et la situation actuelle.</translation>
    </message>
    <message>
        <source>ISOLATION AND PROTECTIVE ACTION DISTANCES</source>
        <translation>DISTANCES D&apos;ISOLEMENT ET DE MESURES DE PROTECTION</translation>
    </message>
    <message>
        <source>Isolation distances: not in this data pack</source>
        <translation>Distances d&apos;isolement : absentes de ce paquet de données</translation>
    </message>
    <message>
        <source>GUIDE %1 (first points; read the whole guide)</source>
        <translation>GUIDE %1 (premiers points ; lisez le guide en entier)</translation>
    </message>
    <message>
        <source>GUIDE: not in this data pack</source>
        <translation>GUIDE : absent de ce paquet de données</translation>
    </message>
    <message>
        <source>(continued in the guide)</source>
        <translation>(suite dans le guide)</translation>
    </message>
    <message>
        <source>more than %1 %2</source>
        <translation>plus de %1 %2</translation>
    </message>
    <message>
        <source>Low wind</source>
        <translation>Vent faible</translation>
    </message>
    <message>
        <source>Moderate wind</source>
        <translation>Vent modéré</translation>
    </message>
    <message>
        <source>High wind</source>
        <translation>Vent fort</translation>
    </message>
    <message>
        <source>night</source>
        <translation>nuit</translation>
    </message>
    <message>
        <source>No condition &quot;%1&quot; for this material</source>
        <translation>Aucune condition « %1 » pour cette matière</translation>
    </message>
    <message>
        <source>Container row &quot;%1&quot; is incomplete</source>
        <translation>La ligne de contenant « %1 » est incomplète</translation>
    </message>
    <message>
        <source>Large spill distances: not in this data pack</source>
        <translation>Distances pour grand déversement : absentes de ce paquet de données</translation>
    </message>
    <message>
        <source>Small spill distances: not in this data pack</source>
        <translation>Distances pour petit déversement : absentes de ce paquet de données</translation>
    </message>
    <message>
        <source>Distances &quot;%1&quot; and &quot;%2&quot; cannot be drawn</source>
        <translation>Impossible de dessiner les distances « %1 » et « %2 »</translation>
    </message>
    <message>
        <source>When spilled in water: %1</source>
        <translation>En cas de déversement dans l&apos;eau : %1</translation>
    </message>
    <message>
        <source>Condition: %1</source>
        <translation>Condition : %1</translation>
    </message>
    <message>
        <source>Wind from %1°</source>
        <translation>Vent venant de %1°</translation>
    </message>
    <message>
        <source>Isolate %1 in all directions</source>
        <translation>Isoler %1 dans toutes les directions</translation>
    </message>
    <message>
        <source>Protect persons downwind for %1 (%2)</source>
        <translation>Protéger les personnes sous le vent sur %1 (%2)</translation>
    </message>
    <message>
        <source>The zone may reach further: it is not closed on the far side.</source>
        <translation>La zone peut s&apos;étendre plus loin : elle n&apos;est pas fermée du côté éloigné.</translation>
    </message>
    <message>
        <source>Schematic, not a map</source>
        <translation>Schématique, ce n&apos;est pas une carte</translation>
    </message>
    <message>
        <source>The guide could not be saved as a PDF for printing (%1).</source>
        <translation>Le guide n&apos;a pas pu être enregistré en PDF pour l&apos;impression (%1).</translation>
    </message>
    <message>
        <source>The guide was saved as a PDF and opened in your PDF viewer, which can print it:
%1</source>
        <translation>Le guide a été enregistré en PDF et ouvert dans votre lecteur PDF, qui permet de l&apos;imprimer :
%1</translation>
    </message>
    <message>
        <source>The guide was saved as a PDF; open it to print it:
%1</source>
        <translation>Le guide a été enregistré en PDF ; ouvrez-le pour l&apos;imprimer :
%1</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Isolation Distances</source>
        <translation>Distances d&apos;isolement</translation>
    </message>
    <message>
        <source>TIH Gases Produced:</source>
        <translation>Gaz TIH produits :</translation>
    </message>
    <message>
        <source>TIH Gas Produced:</source>
        <translation>Gaz TIH produit :</translation>
    </message>
    <message>
        <source>Low wind (&lt; 10 km/h):</source>
        <translation>Vent faible (&lt; 10 km/h) :</translation>
    </message>
    <message>
        <source>Moderate wind (10-20 km/h):</source>
        <translation>Vent modéré (10-20 km/h) :</translation>
    </message>
    <message>
        <source>High wind (&gt; 20 km/h):</source>
        <translation>Vent fort (&gt; 20 km/h) :</translation>
    </message>
    <message>
        <source>Low wind (&lt; 6 mph):</source>
        <translation>Vent faible (&lt; 6 mph) :</translation>
    </message>
    <message>
        <source>Moderate wind (6-12 mph):</source>
        <translation>Vent modéré (6-12 mph) :</translation>
    </message>
    <message>
        <source>High wind (&gt; 12 mph):</source>
        <translation>Vent fort (&gt; 12 mph) :</translation>
    </message>
    <message>
        <source>0 found: this data pack has no materials in %1</source>
        <translation>0 trouvé : ce paquet de données ne contient aucune matière dans %1</translation>
    </message>
    <message>
        <source>Hazard Class</source>
        <translation>Classe de danger</translation>
    </message>
    <message>
        <source>NFPA 704</source>
        <translation>NFPA 704</translation>
    </message>
    <message>
        <source>Note:</source>
        <translation>Remarque :</translation>
    </message>
    <message>
        <source>Physical Description:</source>
        <translation>Description physique :</translation>
    </message>
    <message>
        <source>Synonyms/Trade Names:</source>
        <translation>Synonymes/noms commerciaux :</translation>
    </message>
    <message>
        <source>Exposure/Protection</source>
        <translation>Exposition/protection</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Table of markings, labels and placards</source>
        <translation>Tableau des marques, étiquettes et plaques</translation>
    </message>
    <message>
        <source>The guidebook&apos;s placard chart, which names the initial response guide for each placard, is not in this data pack. Identify the material by the shipping document, numbered placard or orange panel number.</source>
        <translation>Le tableau des plaques du guide, qui indique le guide d&apos;intervention initiale pour chaque plaque, est absent de ce paquet de données. Identifiez la matière par le document d&apos;expédition, la plaque numérotée ou le numéro du panneau orange.</translation>
    </message>
    <message>
        <source>%1 (guide %2)</source>
        <translation>%1 (guide %2)</translation>
    </message>
    <message>
        <source>The guidebook&apos;s index lists this explosive by its division only.</source>
        <translation>L&apos;index du guide ne répertorie cet explosif que par sa division.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Special Provisions</source>
        <translation>Dispositions spéciales</translation>
    </message>
    <message>
        <source>Reported Incidents</source>
        <translation>Incidents signalés</translation>
    </message>
    <message>
        <source>Shipping Regulations</source>
        <translation>Réglementation de l&apos;expédition</translation>
    </message>
    <message>
        <source>International</source>
        <translation>International</translation>
    </message>
    <message>
        <source>Domestic</source>
        <translation>National</translation>
    </message>
    <message>
        <source>%1: isolate %2 %3 in all directions, protect downwind %4 %5; wind from %6°</source>
        <translation>%1 : isoler %2 %3 dans toutes les directions, protéger sous le vent %4 %5 ; vent venant de %6°</translation>
    </message>
    <message>
        <source>%1: cannot create the folder</source>
        <translation>%1 : impossible de créer le dossier</translation>
    </message>
    <message>
        <source>Saved to %1</source>
        <translation>Enregistré dans %1</translation>
    </message>
    <message>
        <source>Tab, Up, Down</source>
        <translation>Tab, Haut, Bas</translation>
    </message>
    <message>
        <source>Move through the rows</source>
        <translation>Parcourir les lignes</translation>
    </message>
    <message>
        <source>Enter or Space</source>
        <translation>Entrée ou Espace</translation>
    </message>
    <message>
        <source>Open the focused row</source>
        <translation>Ouvrir la ligne sélectionnée</translation>
    </message>
    <message>
        <source>Ctrl+C</source>
        <translation>Ctrl+C</translation>
    </message>
    <message>
        <source>Copy the focused name and number</source>
        <translation>Copier le nom et le numéro sélectionnés</translation>
    </message>
    <message>
        <source>Ctrl+I</source>
        <translation>Ctrl+I</translation>
    </message>
    <message>
        <source>About the focused section</source>
        <translation>À propos de la section sélectionnée</translation>
    </message>
    <message>
        <source>Ctrl+Plus</source>
        <translation>Ctrl+Plus</translation>
    </message>
    <message>
        <source>Larger text</source>
        <translation>Texte plus grand</translation>
    </message>
    <message>
        <source>Ctrl+Minus</source>
        <translation>Ctrl+Moins</translation>
    </message>
    <message>
        <source>Smaller text</source>
        <translation>Texte plus petit</translation>
    </message>
    <message>
        <source>Switch between ft/miles and m/kms</source>
        <translation>Basculer entre pieds/milles et m/km</translation>
    </message>
    <message>
        <source>Type, Ctrl+F or /</source>
        <translation>Saisir, Ctrl+F ou /</translation>
    </message>
    <message>
        <source>Search the materials</source>
        <translation>Rechercher les matières</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <source>Open the first result</source>
        <translation>Ouvrir le premier résultat</translation>
    </message>
    <message>
        <source>Up, Down</source>
        <translation>Haut, Bas</translation>
    </message>
    <message>
        <source>Move through the results</source>
        <translation>Parcourir les résultats</translation>
    </message>
    <message>
        <source>Ctrl+1, Ctrl+2, Ctrl+3</source>
        <translation>Ctrl+1, Ctrl+2, Ctrl+3</translation>
    </message>
    <message>
        <source>Go to the summary, shipping or protection column</source>
        <translation>Aller à la colonne résumé, expédition ou protection</translation>
    </message>
    <message>
        <source>Show the Summary, Shipping or Protection tab</source>
        <translation>Afficher l&apos;onglet Résumé, Expédition ou Protection</translation>
    </message>
    <message>
        <source>Ctrl+P</source>
        <translation>Ctrl+P</translation>
    </message>
    <message>
        <source>Print the guide</source>
        <translation>Imprimer le guide</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Plein écran</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Échap</translation>
    </message>
    <message>
        <source>Leave full screen, then go back</source>
        <translation>Quitter le plein écran, puis revenir</translation>
    </message>
    <message>
        <source>Esc or Alt+Left</source>
        <translation>Échap ou Alt+Gauche</translation>
    </message>
    <message>
        <source>Tab, Shift+Tab</source>
        <translation>Tab, Maj+Tab</translation>
    </message>
    <message>
        <source>Move to the next or previous control</source>
        <translation>Aller au contrôle suivant ou précédent</translation>
    </message>
    <message>
        <source>Ctrl+Shift+D</source>
        <translation>Ctrl+Maj+D</translation>
    </message>
    <message>
        <source>Switch between the light and dark appearance</source>
        <translation>Basculer entre l&apos;apparence claire et sombre</translation>
    </message>
    <message>
        <source>F1 or ?</source>
        <translation>F1 ou ?</translation>
    </message>
    <message>
        <source>Show these keyboard shortcuts</source>
        <translation>Afficher ces raccourcis clavier</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
</context>
<context>
    <name>ReferencePage</name>
    <message>
        <source>Placards</source>
        <translation>Plaques</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
</context>
<context>
    <name>RegulationPage</name>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Page text</source>
        <translation>Texte de la page</translation>
    </message>
</context>
<context>
    <name>SearchByIdPage</name>
    <message>
        <source>Search by UN Id</source>
        <translation>Rechercher par numéro ONU</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>UN number</source>
        <translation>Numéro ONU</translation>
    </message>
    <message>
        <source>Hazard Class</source>
        <translation>Classe de danger</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Ouvrir %1</translation>
    </message>
</context>
<context>
    <name>ShippingEntryPage</name>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
</context>
<context>
    <name>TextSizeButton</name>
    <message>
        <source>Text size</source>
        <translation>Taille du texte</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
</context>
</TS>
