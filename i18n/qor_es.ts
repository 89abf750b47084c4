<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>AboutPage</name>
    <message>
        <source>HOW TO USE THE GUIDEBOOK</source>
        <translation>CÓMO USAR LA GUÍA</translation>
    </message>
    <message>
        <source>Data pack</source>
        <translation>Paquete de datos</translation>
    </message>
    <message>
        <source>Edition</source>
        <translation>Edición</translation>
    </message>
    <message>
        <source>none found</source>
        <translation>no encontrado</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Datos</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>Send Feedback</source>
        <translation>Enviar comentarios</translation>
    </message>
    <message>
        <source>Sources</source>
        <translation>Fuentes</translation>
    </message>
    <message>
        <source>Used for: %1</source>
        <translation>Usado para: %1</translation>
    </message>
    <message>
        <source>Not used by this pack&apos;s content</source>
        <translation>No usado por el contenido de este paquete</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apariencia</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Oscuro</translation>
    </message>
</context>
<context>
    <name>BarHeader</name>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
</context>
<context>
    <name>DetailRows</name>
    <message>
        <source>About %1</source>
        <translation>Acerca de %1</translation>
    </message>
    <message>
        <source>Hazard Class</source>
        <translation>Clase de riesgo</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Show less</source>
        <translation>Mostrar menos</translation>
    </message>
    <message>
        <source>Show all %1 statements</source>
        <translation>Mostrar las %1 indicaciones</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
</context>
<context>
    <name>FilterPage</name>
    <message>
        <source>Filter Materials</source>
        <translation>Filtrar materiales</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Materials with Incidents</source>
        <translation>Materiales con incidentes</translation>
    </message>
</context>
<context>
    <name>GuideListPage</name>
    <message>
        <source>Guides</source>
        <translation>Guías</translation>
    </message>
    <message>
        <source>Guide</source>
        <translation>Guía</translation>
    </message>
</context>
<context>
    <name>GuidePage</name>
    <message>
        <source>Full screen</source>
        <translation>Pantalla completa</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Compartir</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>Correo electrónico</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Leave full screen</source>
        <translation>Salir de pantalla completa</translation>
    </message>
    <message>
        <source>Widen the window to see the isolation distances beside the guide.</source>
        <translation>Amplíe la ventana para ver las distancias de aislamiento junto a la guía.</translation>
    </message>
    <message>
        <source>Widen the window for a landscape view of the guide.</source>
        <translation>Amplíe la ventana para ver la guía en horizontal.</translation>
    </message>
</context>
<context>
    <name>HistoryPage</name>
    <message>
        <source>Clear History</source>
        <translation>Borrar historial</translation>
    </message>
</context>
<context>
    <name>InfoPage</name>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
</context>
<context>
    <name>IsolationPage</name>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Isolation Distances</source>
        <translation>Distancias de aislamiento</translation>
    </message>
    <message>
        <source>About isolation distances</source>
        <translation>Acerca de las distancias de aislamiento</translation>
    </message>
</context>
<context>
    <name>IsolationTable</name>
    <message>
        <source>Protective action zone</source>
        <translation>Zona de acción de protección</translation>
    </message>
    <message>
        <source>Small spill</source>
        <translation>Derrame pequeño</translation>
    </message>
    <message>
        <source>Large spill</source>
        <translation>Derrame grande</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Día</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Noche</translation>
    </message>
    <message>
        <source>Wind direction compass</source>
        <translation>Rosa de los vientos</translation>
    </message>
    <message>
        <source>Wind from (degrees)</source>
        <translation>Viento desde (grados)</translation>
    </message>
    <message>
        <source>Save incident sheet (PDF)</source>
        <translation>Guardar hoja de incidente (PDF)</translation>
    </message>
    <message>
        <source>Open to print</source>
        <translation>Abrir para imprimir</translation>
    </message>
    <message>
        <source>ft/miles</source>
        <translation>pies/millas</translation>
    </message>
    <message>
        <source>m/kms</source>
        <translation>m/km</translation>
    </message>
    <message>
        <source>Small Spill</source>
        <translation>Derrame pequeño</translation>
    </message>
    <message>
        <source>Large Spill</source>
        <translation>Derrame grande</translation>
    </message>
    <message>
        <source>First ISOLATE in all Directions for :</source>
        <translation>Primero AISLAR en todas las direcciones:</translation>
    </message>
    <message>
        <source>Then protect persons Downwind</source>
        <translation>Después proteger a las personas a favor del viento</translation>
    </message>
    <message>
        <source>(Day) :</source>
        <translation>(Día):</translation>
    </message>
    <message>
        <source>(Night) :</source>
        <translation>(Noche):</translation>
    </message>
    <message>
        <source>(Day)</source>
        <translation>(Día)</translation>
    </message>
    <message>
        <source>(Night)</source>
        <translation>(Noche)</translation>
    </message>
    <message>
        <source>Isolation Distances</source>
        <translation>Distancias de aislamiento</translation>
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
        <translation>Materiales</translation>
    </message>
    <message>
        <source>Guides</source>
        <translation>Guías</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Referencia</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Choose a material</source>
        <translation>Elija un material</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
</context>
<context>
    <name>MaterialDetailPage</name>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>Shipping</source>
        <translation>Embarque</translation>
    </message>
    <message>
        <source>Protection</source>
        <translation>Protección</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
</context>
<context>
    <name>MaterialListPage</name>
    <message>
        <source>Choose category</source>
        <translation>Elegir categoría</translation>
    </message>
    <message>
        <source>Filter materials</source>
        <translation>Filtrar materiales</translation>
    </message>
    <message>
        <source>Change sort order</source>
        <translation>Cambiar el orden</translation>
    </message>
    <message>
        <source>Did you mean</source>
        <translation>Quiso decir</translation>
    </message>
    <message>
        <source>Guide</source>
        <translation>Guía</translation>
    </message>
    <message>
        <source>Suggestion</source>
        <translation>Sugerencia</translation>
    </message>
    <message>
        <source>Section index</source>
        <translation>Índice de secciones</translation>
    </message>
</context>
<context>
    <name>PageHost</name>
    <message>
        <source>Page text</source>
        <translation>Texto de la página</translation>
    </message>
</context>
<context>
    <name>PlacardsPage</name>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>%1, guide %2</source>
        <translation>%1, guía %2</translation>
    </message>
</context>
<context>
    <name>QOR</name>
    <message>
        <source>All Materials</source>
        <translation>Todos los materiales</translation>
    </message>
    <message>
        <source>Toxic Inhalation Hazard</source>
        <translation>Riesgo de inhalación tóxica</translation>
    </message>
    <message>
        <source>TIH - Common</source>
        <translation>RIT - Comunes</translation>
    </message>
    <message>
        <source>Meth Lab</source>
        <translation>Laboratorio de metanfetamina</translation>
    </message>
    <message>
        <source>Water Reactive</source>
        <translation>Reactivos con el agua</translation>
    </message>
    <message>
        <source>Polymerizing</source>
        <translation>Polimerizables</translation>
    </message>
    <message>
        <source> Loading...</source>
        <translation> Cargando...</translation>
    </message>
    <message>
        <source>Materials</source>
        <translation>Materiales</translation>
    </message>
    <message>
        <source>Chemical Warfare</source>
        <translation>Guerra química</translation>
    </message>
    <message>
        <source>Exposure Routes</source>
        <translation>Vías de exposición</translation>
    </message>
    <message>
        <source>Symptoms</source>
        <translation>Síntomas</translation>
    </message>
    <message>
        <source>Target Organs</source>
        <translation>Órganos diana</translation>
    </message>
    <message>
        <source>Personal Protection</source>
        <translation>Protección personal</translation>
    </message>
    <message>
        <source>First Aid</source>
        <translation>Primeros auxilios</translation>
    </message>
    <message>
        <source>Exposure:</source>
        <translation>Exposición:</translation>
    </message>
    <message>
        <source>Packing Group:</source>
        <translation>Grupo de embalaje:</translation>
    </message>
    <message>
        <source>Special Provisions:</source>
        <translation>Disposiciones especiales:</translation>
    </message>
    <message>
        <source>Non-Bulk Packaging:</source>
        <translation>Embalaje no a granel:</translation>
    </message>
    <message>
        <source>Bulk Packaging:</source>
        <translation>Embalaje a granel:</translation>
    </message>
    <message>
        <source>Qty Limit Passenger Air/Rail:</source>
        <translation>Cantidad máx. avión/tren de pasajeros:</translation>
    </message>
    <message>
        <source>Qty Limit Air Cargo:</source>
        <translation>Cantidad máx. avión de carga:</translation>
    </message>
    <message>
        <source>Vessel Stowage Location:</source>
        <translation>Ubicación de estiba en buque:</translation>
    </message>
    <message>
        <source>Great Danger</source>
        <translation>Peligro grave</translation>
    </message>
    <message>
        <source>Medium Danger</source>
        <translation>Peligro medio</translation>
    </message>
    <message>
        <source>Minor Danger</source>
        <translation>Peligro menor</translation>
    </message>
    <message>
        <source>Explosives with a mass explosion hazard.</source>
        <translation>Explosivos con peligro de explosión en masa.</translation>
    </message>
    <message>
        <source>Explosives with a blast/projection hazard.</source>
        <translation>Explosivos con peligro de proyección.</translation>
    </message>
    <message>
        <source>Explosives with a minor blast hazard.</source>
        <translation>Explosivos con peligro menor de explosión.</translation>
    </message>
    <message>
        <source>Explosives with a major fire hazard.</source>
        <translation>Explosivos con peligro grave de incendio.</translation>
    </message>
    <message>
        <source>Blasting agents.</source>
        <translation>Agentes de voladura.</translation>
    </message>
    <message>
        <source>Extremely insensitive explosives.</source>
        <translation>Explosivos extremadamente insensibles.</translation>
    </message>
    <message>
        <source>Flammable Gas</source>
        <translation>Gas inflamable</translation>
    </message>
    <message>
        <source>Non-Flammable Gases</source>
        <translation>Gases no inflamables</translation>
    </message>
    <message>
        <source>Poisonous Gases</source>
        <translation>Gases venenosos</translation>
    </message>
    <message>
        <source>Flammable Liquids</source>
        <translation>Líquidos inflamables</translation>
    </message>
    <message>
        <source>Flammable Solids</source>
        <translation>Sólidos inflamables</translation>
    </message>
    <message>
        <source>Spontaneously Combustible Solids</source>
        <translation>Sólidos de combustión espontánea</translation>
    </message>
    <message>
        <source>Dangerous when Wet</source>
        <translation>Peligroso en contacto con agua</translation>
    </message>
    <message>
        <source>Oxidizing Agent</source>
        <translation>Agente oxidante</translation>
    </message>
    <message>
        <source>Organic Peroxide Oxidizing Agent</source>
        <translation>Peróxido orgánico oxidante</translation>
    </message>
    <message>
        <source>Toxic and Infectious Substances</source>
        <translation>Sustancias tóxicas e infecciosas</translation>
    </message>
    <message>
        <source>Poison</source>
        <translation>Veneno</translation>
    </message>
    <message>
        <source>Poison Inhalation Hazard</source>
        <translation>Veneno por inhalación</translation>
    </message>
    <message>
        <source>Biohazard</source>
        <translation>Riesgo biológico</translation>
    </message>
    <message>
        <source>Radioactive Substances </source>
        <translation>Sustancias radiactivas </translation>
    </message>
    <message>
        <source>Corrosive Substances</source>
        <translation>Sustancias corrosivas</translation>
    </message>
    <message>
        <source>Corrosive Substances: Acids</source>
        <translation>Sustancias corrosivas: ácidos</translation>
    </message>
    <message>
        <source>Corrosive Substances Alkalis</source>
        <translation>Sustancias corrosivas: álcalis</translation>
    </message>
    <message>
        <source>Miscellaneous</source>
        <translation>Varios</translation>
    </message>
    <message>
        <source>WATER REACTIVE MATERIAL</source>
        <translation>MATERIAL REACTIVO CON EL AGUA</translation>
    </message>
    <message>
        <source>CHEMICAL WARFARE AGENT</source>
        <translation>AGENTE DE GUERRA QUÍMICA</translation>
    </message>
    <message>
        <source>TOXIC INHALATION HAZARD</source>
        <translation>RIESGO DE INHALACIÓN TÓXICA</translation>
    </message>
    <message>
        <source>default</source>
        <translation>predeterminado</translation>
    </message>
    <message>
        <source>Sample data — not for operational use</source>
        <translation>Datos de muestra — no aptos para uso operativo</translation>
    </message>
    <message>
        <source>QOR Materials</source>
        <translation>Materiales QOR</translation>
    </message>
    <message>
        <source>Tables</source>
        <translation>Tablas</translation>
    </message>
    <message>
        <source>Resources</source>
        <translation>Recursos</translation>
    </message>
    <message>
        <source>Identification and Response</source>
        <translation>Identificación y respuesta</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Acciones</translation>
    </message>
    <message>
        <source>Emergency Response Phone Numbers</source>
        <translation>Teléfonos de respuesta a emergencias</translation>
    </message>
    <message>
        <source>Emergency</source>
        <translation>Emergencia</translation>
    </message>
    <message>
        <source>CRIMINAL/TERRORIST USE OF CHEMICAL/BIOLOGICAL/RADIOLOGICAL AGENTS</source>
        <translation>USO CRIMINAL/TERRORISTA DE AGENTES QUÍMICOS/BIOLÓGICOS/RADIOLÓGICOS</translation>
    </message>
    <message>
        <source>CRIMINAL/TERRORIST USE</source>
        <translation>USO CRIMINAL/TERRORISTA</translation>
    </message>
    <message>
        <source>BLEVE and Heat Induced Tear</source>
        <translation>BLEVE y rotura por calor</translation>
    </message>
    <message>
        <source>IED Safe Stand Off Distance</source>
        <translation>Distancia de seguridad ante artefactos explosivos improvisados</translation>
    </message>
    <message>
        <source>IED</source>
        <translation>AEI</translation>
    </message>
    <message>
        <source>Glossary</source>
        <translation>Glosario</translation>
    </message>
    <message>
        <source>HOW TO USE THE GUIDEBOOK</source>
        <translation>CÓMO USAR LA GUÍA</translation>
    </message>
    <message>
        <source>SHIPPING DOCUMENTS (PAPERS)</source>
        <translation>DOCUMENTOS DE EMBARQUE</translation>
    </message>
    <message>
        <source>SHIPPING</source>
        <translation>EMBARQUE</translation>
    </message>
    <message>
        <source>PROTECTIVE CLOTHING</source>
        <translation>ROPA DE PROTECCIÓN</translation>
    </message>
    <message>
        <source>Decontamination</source>
        <translation>Descontaminación</translation>
    </message>
    <message>
        <source>HAZARD CLASSIFICATION SYSTEM</source>
        <translation>SISTEMA DE CLASIFICACIÓN DE RIESGOS</translation>
    </message>
    <message>
        <source>TABLE OF MARKINGS, LABELS AND PLACARDS</source>
        <translation>TABLA DE MARCAS, ETIQUETAS Y CARTELES</translation>
    </message>
    <message>
        <source>Placards</source>
        <translation>Carteles</translation>
    </message>
    <message>
        <source>Pipeline Transportation</source>
        <translation>Transporte por ductos</translation>
    </message>
    <message>
        <source>Pipelines</source>
        <translation>Ductos</translation>
    </message>
    <message>
        <source>GLOBALLY HARMONIZED SYSTEM OF CLASSIFICATION AND LABELING OF CHEMICALS (GHS)</source>
        <translation>SISTEMA GLOBALMENTE ARMONIZADO DE CLASIFICACIÓN Y ETIQUETADO DE PRODUCTOS QUÍMICOS (SGA)</translation>
    </message>
    <message>
        <source>GHS</source>
        <translation>SGA</translation>
    </message>
    <message>
        <source>RAIL CAR IDENTIFICATION CHART</source>
        <translation>TABLA DE IDENTIFICACIÓN DE CARROS DE FERROCARRIL</translation>
    </message>
    <message>
        <source>Rail Cars</source>
        <translation>Carros de ferrocarril</translation>
    </message>
    <message>
        <source>ROAD TRAILER IDENTIFICATION CHART</source>
        <translation>TABLA DE IDENTIFICACIÓN DE REMOLQUES</translation>
    </message>
    <message>
        <source>Road Trailers</source>
        <translation>Remolques</translation>
    </message>
    <message>
        <source>HAZARD IDENTIFICATION NUMBERS DISPLAYED ON SOME INTERMODAL CONTAINERS</source>
        <translation>NÚMEROS DE IDENTIFICACIÓN DE RIESGO EN ALGUNOS CONTENEDORES INTERMODALES</translation>
    </message>
    <message>
        <source>Intermodal</source>
        <translation>Intermodal</translation>
    </message>
    <message>
        <source>Safety Precautions</source>
        <translation>Precauciones de seguridad</translation>
    </message>
    <message>
        <source>Precautions</source>
        <translation>Precauciones</translation>
    </message>
    <message>
        <source>Protective Actions</source>
        <translation>Acciones de protección</translation>
    </message>
    <message>
        <source>Protective Action Decision Factors to Consider</source>
        <translation>Factores para decidir las acciones de protección</translation>
    </message>
    <message>
        <source>Protective Action</source>
        <translation>Acción de protección</translation>
    </message>
    <message>
        <source>NOTIFICATION AND REQUEST FOR TECHNICAL INFORMATION</source>
        <translation>NOTIFICACIÓN Y SOLICITUD DE INFORMACIÓN TÉCNICA</translation>
    </message>
    <message>
        <source>NOTIFICATION</source>
        <translation>NOTIFICACIÓN</translation>
    </message>
    <message>
        <source>FIRE AND SPILL CONTROL</source>
        <translation>CONTROL DE INCENDIOS Y DERRAMES</translation>
    </message>
    <message>
        <source>CONTROL</source>
        <translation>CONTROL</translation>
    </message>
    <message>
        <source>CONSIDERATIONS FOR LITHIUM BATTERY AND ELECTRIC VEHICLE (EV) FIRES</source>
        <translation>CONSIDERACIONES PARA INCENDIOS DE BATERÍAS DE LITIO Y VEHÍCULOS ELÉCTRICOS (VE)</translation>
    </message>
    <message>
        <source>LITHIUM BATTERY FIRES</source>
        <translation>INCENDIOS DE BATERÍAS DE LITIO</translation>
    </message>
    <message>
        <source>Aircraft Transportation</source>
        <translation>Transporte aéreo</translation>
    </message>
    <message>
        <source>Aircraft</source>
        <translation>Aeronaves</translation>
    </message>
    <message>
        <source>Bulk Packaging</source>
        <translation>Embalaje a granel</translation>
    </message>
    <message>
        <source>Intermediate Bulk Containers</source>
        <translation>Recipientes intermedios para graneles</translation>
    </message>
    <message>
        <source>IBC</source>
        <translation>RIG</translation>
    </message>
    <message>
        <source>Non-Bulk Packaging</source>
        <translation>Embalaje no a granel</translation>
    </message>
    <message>
        <source>IM and UN Specification Portable Tanks</source>
        <translation>Cisternas portátiles IM y de especificación ONU</translation>
    </message>
    <message>
        <source>Portable Tanks</source>
        <translation>Cisternas portátiles</translation>
    </message>
    <message>
        <source>UN Portable Tanks</source>
        <translation>Cisternas portátiles ONU</translation>
    </message>
    <message>
        <source>Water Transportation</source>
        <translation>Transporte marítimo</translation>
    </message>
    <message>
        <source>Water transport</source>
        <translation>Transporte marítimo</translation>
    </message>
    <message>
        <source>Numeric Provisions</source>
        <translation>Disposiciones numéricas</translation>
    </message>
    <message>
        <source>%@ %d were considered serious.</source>
        <translation>%@ %d se consideraron graves.</translation>
    </message>
    <message>
        <source>%@ %d involved bulk releases.</source>
        <translation>%@ %d implicaron fugas a granel.</translation>
    </message>
    <message>
        <source>%@ %d required an evacuation.</source>
        <translation>%@ %d requirieron una evacuación.</translation>
    </message>
    <message>
        <source>%@ %d had a fatality.</source>
        <translation>%@ %d tuvieron una víctima mortal.</translation>
    </message>
    <message>
        <source>%@ %d occurred on a major artery.</source>
        <translation>%@ %d ocurrieron en una vía principal.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hoy</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ayer</translation>
    </message>
    <message>
        <source>Last Sunday</source>
        <translation>El domingo pasado</translation>
    </message>
    <message>
        <source>Last Monday</source>
        <translation>El lunes pasado</translation>
    </message>
    <message>
        <source>Last Tuesday</source>
        <translation>El martes pasado</translation>
    </message>
    <message>
        <source>Last Wednesday</source>
        <translation>El miércoles pasado</translation>
    </message>
    <message>
        <source>Last Thursday</source>
        <translation>El jueves pasado</translation>
    </message>
    <message>
        <source>Last Friday</source>
        <translation>El viernes pasado</translation>
    </message>
    <message>
        <source>Last Saturday</source>
        <translation>El sábado pasado</translation>
    </message>
    <message>
        <source>1 year ago</source>
        <translation>hace 1 año</translation>
    </message>
    <message>
        <source>%d years ago</source>
        <translation>hace %d años</translation>
    </message>
    <message>
        <source>1 month ago</source>
        <translation>hace 1 mes</translation>
    </message>
    <message>
        <source>%d months ago</source>
        <translation>hace %d meses</translation>
    </message>
    <message>
        <source>1 week ago</source>
        <translation>hace 1 semana</translation>
    </message>
    <message>
        <source>%d weeks ago</source>
        <translation>hace %d semanas</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; couldn&apos;t be removed.</source>
        <translation>No se pudo eliminar el archivo «%1».</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; couldn&apos;t be saved.</source>
        <translation>No se pudo guardar el archivo «%1».</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; couldn&apos;t be opened.</source>
        <translation>No se pudo abrir la carpeta «%1».</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; couldn&apos;t be opened.</source>
        <translation>No se pudo abrir el archivo «%1».</translation>
    </message>
    <message>
        <source>Unable to save data: %@</source>
        <translation>No se pueden guardar los datos: %@</translation>
    </message>
    <message>
        <source>Unable to locate file %@</source>
        <translation>No se encuentra el archivo %@</translation>
    </message>
    <message>
        <source>Error Message</source>
        <translation>Mensaje de error</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>International Chemical Safety Card for %@</source>
        <translation>Ficha internacional de seguridad química de %@</translation>
    </message>
    <message>
        <source>NIOSH Pocket Guide for %@</source>
        <translation>Guía de bolsillo NIOSH de %@</translation>
    </message>
    <message>
        <source>There were no incidents reported to the National Response Center (NRC) in the last 12 months</source>
        <translation>No se notificaron incidentes al National Response Center (NRC) en los últimos 12 meses</translation>
    </message>
    <message>
        <source>There was only one incident</source>
        <translation>Hubo un solo incidente</translation>
    </message>
    <message>
        <source>There were no incidents</source>
        <translation>No hubo incidentes</translation>
    </message>
    <message>
        <source>There were %d incidents</source>
        <translation>Hubo %d incidentes</translation>
    </message>
    <message>
        <source>in the last %d months</source>
        <translation>en los últimos %d meses</translation>
    </message>
    <message>
        <source>%@ reported to the National Response Center (NRC) %@.</source>
        <translation>%@ notificados al National Response Center (NRC) %@.</translation>
    </message>
    <message>
        <source>49CFR § 173.%@ %@</source>
        <translation>49CFR § 173.%@ %@</translation>
    </message>
    <message>
        <source>Stowage category &quot;%@&quot; - %@</source>
        <translation>Categoría de estiba «%@» - %@</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Reference data</source>
        <translation>Datos de referencia</translation>
    </message>
    <message>
        <source>All %1 files match their checksums</source>
        <translation>Los %1 archivos coinciden con sus sumas de verificación</translation>
    </message>
    <message>
        <source>%1 of %2 files do not match their checksums</source>
        <translation>%1 de %2 archivos no coinciden con sus sumas de verificación</translation>
    </message>
    <message>
        <source>No pack.json: the files cannot be checked</source>
        <translation>Sin pack.json: no se pueden verificar los archivos</translation>
    </message>
    <message>
        <source>Checking files…</source>
        <translation>Verificando archivos…</translation>
    </message>
    <message>
        <source>%1 (%2 %3)</source>
        <translation>%1 (%2 %3)</translation>
    </message>
    <message>
        <source>found</source>
        <translation>encontrados</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Recientes</translation>
    </message>
    <message>
        <source>Most Viewed</source>
        <translation>Más vistos</translation>
    </message>
    <message>
        <source>today</source>
        <translation>hoy</translation>
    </message>
    <message>
        <source>%1 %2%3 ago</source>
        <translation>hace %1 %2%3</translation>
    </message>
    <message>
        <source>day</source>
        <translation>día</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>yesterday</source>
        <translation>ayer</translation>
    </message>
    <message>
        <source>once</source>
        <translation>una vez</translation>
    </message>
    <message>
        <source>twice</source>
        <translation>dos veces</translation>
    </message>
    <message>
        <source>%1 %2%3</source>
        <translation>%1 %2%3</translation>
    </message>
    <message>
        <source>time</source>
        <translation>consulta</translation>
    </message>
    <message>
        <source>Search by UN Number</source>
        <translation>Buscar por número ONU</translation>
    </message>
    <message>
        <source>Search by Name or UN Number</source>
        <translation>Buscar por nombre o número ONU</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>search results</source>
        <translation>resultados de búsqueda</translation>
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
        <translation>Guía</translation>
    </message>
    <message>
        <source>%1 Incident%2</source>
        <translation>%1 incidente%2</translation>
    </message>
    <message>
        <source>ID Number Index (yellow pages)</source>
        <translation>Índice por número de identificación (páginas amarillas)</translation>
    </message>
    <message>
        <source>Name of Material Index (blue pages)</source>
        <translation>Índice por nombre del material (páginas azules)</translation>
    </message>
    <message>
        <source>[Table 1] Toxic Inhalation Hazard [TIH] Materials</source>
        <translation>[Tabla 1] Materiales con riesgo de inhalación tóxica [RIT]</translation>
    </message>
    <message>
        <source>[Table 2] Water-Reactive Materials which produce Toxic Gases</source>
        <translation>[Tabla 2] Materiales que reaccionan con el agua y producen gases tóxicos</translation>
    </message>
    <message>
        <source>[Table 3] Commonly Encountered Toxic Inhalation Hazard Gases</source>
        <translation>[Tabla 3] Gases comunes con riesgo de inhalación tóxica</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Referencia</translation>
    </message>
    <message>
        <source>[Table %1]</source>
        <translation>[Tabla %1]</translation>
    </message>
    <message>
        <source>UN%1</source>
        <translation>ONU%1</translation>
    </message>
    <message>
        <source>The guidebook&apos;s index does not list UN%1; shown from the shipping table.</source>
        <translation>El índice de la guía no incluye ONU%1; se muestra a partir de la tabla de embarque.</translation>
    </message>
    <message>
        <source>Guide: not in this data pack</source>
        <translation>Guía: no está en este paquete de datos</translation>
    </message>
    <message>
        <source>Guide of the index&apos;s row &quot;%1&quot;</source>
        <translation>Guía de la fila «%1» del índice</translation>
    </message>
    <message>
        <source>0 found</source>
        <translation>0 encontrados</translation>
    </message>
    <message>
        <source>Source: unknown (unverified data pack)</source>
        <translation>Fuente: desconocida (paquete de datos no verificado)</translation>
    </message>
    <message>
        <source>Source: not recorded in this data pack</source>
        <translation>Fuente: no registrada en este paquete de datos</translation>
    </message>
    <message>
        <source>Source: %1</source>
        <translation>Fuente: %1</translation>
    </message>
    <message>
        <source>From a partial extract of %1 reports</source>
        <translation>De un extracto parcial de %1 informes</translation>
    </message>
    <message>
        <source>From a partial extract of %1 reports, %2 to %3</source>
        <translation>De un extracto parcial de %1 informes, del %2 al %3</translation>
    </message>
    <message>
        <source>Unverified data pack — sources unknown</source>
        <translation>Paquete de datos no verificado — fuentes desconocidas</translation>
    </message>
    <message>
        <source>Rail Tank Car</source>
        <translation>Carro tanque de ferrocarril</translation>
    </message>
    <message>
        <source>Highway Tank Car or Trailer</source>
        <translation>Autotanque o remolque cisterna</translation>
    </message>
    <message>
        <source>Agricultural Nurse Tank</source>
        <translation>Tanque nodriza agrícola</translation>
    </message>
    <message>
        <source>Multiple Small Cylinders</source>
        <translation>Varios cilindros pequeños</translation>
    </message>
    <message>
        <source>Multiple ton cylinders</source>
        <translation>Varios cilindros de una tonelada</translation>
    </message>
    <message>
        <source>Multiple Small Cylinders or single ton cylinder</source>
        <translation>Varios cilindros pequeños o un cilindro de una tonelada</translation>
    </message>
    <message>
        <source>%1: isolate %2 in all directions; protect downwind by day %3, by night %4</source>
        <translation>%1: aislar %2 en todas las direcciones; proteger a favor del viento de día %3, de noche %4</translation>
    </message>
    <message>
        <source>Small spill</source>
        <translation>Derrame pequeño</translation>
    </message>
    <message>
        <source>Large spill</source>
        <translation>Derrame grande</translation>
    </message>
    <message>
        <source>low wind</source>
        <translation>viento bajo</translation>
    </message>
    <message>
        <source>moderate wind</source>
        <translation>viento moderado</translation>
    </message>
    <message>
        <source>high wind</source>
        <translation>viento fuerte</translation>
    </message>
    <message>
        <source>Large spill, %1: isolate %2; by day %3; by night %4</source>
        <translation>Derrame grande, %1: aislar %2; de día %3; de noche %4</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>Clase</translation>
    </message>
    <message>
        <source>not in this data pack</source>
        <translation>no está en este paquete de datos</translation>
    </message>
    <message>
        <source>Sheet made %1</source>
        <translation>Hoja elaborada el %1</translation>
    </message>
    <message>
        <source>Prepared by: %1</source>
        <translation>Preparada por: %1</translation>
    </message>
    <message>
        <source>Data pack: %1 (built %2)</source>
        <translation>Paquete de datos: %1 (generado el %2)</translation>
    </message>
    <message>
        <source>Data pack: not identified (no pack.json)</source>
        <translation>Paquete de datos: sin identificar (no hay pack.json)</translation>
    </message>
    <message>
        <source>The zone figure is schematic, not a map. Check the guide and the current situation.</source>
        <translation>La figura de la zona es esquemática, no es un mapa. Consulte la guía y la situación actual.</translation>
    </message>
    <message>
        <source>ISOLATION AND PROTECTIVE ACTION DISTANCES</source>
        <translation>DISTANCIAS DE AISLAMIENTO Y DE ACCIÓN DE PROTECCIÓN</translation>
    </message>
    <message>
        <source>Isolation distances: not in this data pack</source>
        <translation>Distancias de aislamiento: no están en este paquete de datos</translation>
    </message>
    <message>
        <source>GUIDE %1 (first points; read the whole guide)</source>
        <translation>GUÍA %1 (primeros puntos; lea la guía completa)</translation>
    </message>
    <message>
        <source>GUIDE: not in this data pack</source>
        <translation>GUÍA: no está en este paquete de datos</translation>
    </message>
    <message>
        <source>(continued in the guide)</source>
        <translation>(continúa en la guía)</translation>
    </message>
    <message>
        <source>more than %1 %2</source>
        <translation>más de %1 %2</translation>
    </message>
    <message>
        <source>Low wind</source>
        <translation>Viento bajo</translation>
    </message>
    <message>
        <source>Moderate wind</source>
        <translation>Viento moderado</translation>
    </message>
    <message>
        <source>High wind</source>
        <translation>Viento fuerte</translation>
    </message>
    <message>
        <source>night</source>
        <translation>noche</translation>
    </message>
    <message>
        <source>No condition &quot;%1&quot; for this material</source>
        <translation>No existe la condición «%1» para este material</translation>
    </message>
    <message>
        <source>Container row &quot;%1&quot; is incomplete</source>
        <translation>La fila de contenedor «%1» está incompleta</translation>
    </message>
    <message>
        <source>Large spill distances: not in this data pack</source>
        <translation>Distancias para derrame grande: no están en este paquete de datos</translation>
    </message>
    <message>
        <source>Small spill distances: not in this data pack</source>
        <translation>Distancias para derrame pequeño: no están en este paquete de datos</translation>
    </message>
    <message>
        <source>Distances &quot;%1&quot; and &quot;%2&quot; cannot be drawn</source>
        <translation>No se pueden dibujar las distancias «%1» y «%2»</translation>
    </message>
    <message>
        <source>When spilled in water: %1</source>
        <translation>Si se derrama en agua: %1</translation>
    </message>
    <message>
        <source>Condition: %1</source>
        <translation>Condición: %1</translation>
    </message>
    <message>
        <source>Wind from %1°</source>
        <translation>Viento desde %1°</translation>
    </message>
    <message>
        <source>Isolate %1 in all directions</source>
        <translation>Aislar %1 en todas las direcciones</translation>
    </message>
    <message>
        <source>Protect persons downwind for %1 (%2)</source>
        <translation>Proteger a las personas a favor del viento en %1 (%2)</translation>
    </message>
    <message>
        <source>The zone may reach further: it is not closed on the far side.</source>
        <translation>La zona puede extenderse más allá: no está cerrada en el extremo lejano.</translation>
    </message>
    <message>
        <source>Schematic, not a map</source>
        <translation>Esquemático, no es un mapa</translation>
    </message>
    <message>
        <source>The guide could not be saved as a PDF for printing (%1).</source>
        <translation>No se pudo guardar la guía como PDF para imprimirla (%1).</translation>
    </message>
    <message>
        <source>The guide was saved as a PDF and opened in your PDF viewer, which can print it:
%1</source>
        <translation>La guía se guardó como PDF y se abrió en su visor de PDF, desde el que puede imprimirla:
%1</translation>
    </message>
    <message>
        <source>The guide was saved as a PDF; open it to print it:
%1</source>
        <translation>La guía se guardó como PDF; ábrala para imprimirla:
%1</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Isolation Distances</source>
        <translation>Distancias de aislamiento</translation>
    </message>
    <message>
        <source>TIH Gases Produced:</source>
        <translation>Gases RIT producidos:</translation>
    </message>
    <message>
        <source>TIH Gas Produced:</source>
        <translation>Gas RIT producido:</translation>
    </message>
    <message>
        <source>Low wind (&lt; 10 km/h):</source>
        <translation>Viento bajo (&lt; 10 km/h):</translation>
    </message>
    <message>
        <source>Moderate wind (10-20 km/h):</source>
        <translation>Viento moderado (10-20 km/h):</translation>
    </message>
    <message>
        <source>High wind (&gt; 20 km/h):</source>
        <translation>Viento fuerte (&gt; 20 km/h):</translation>
    </message>
    <message>
        <source>Low wind (&lt; 6 mph):</source>
        <translation>Viento bajo (&lt; 6 mph):</translation>
    </message>
    <message>
        <source>Moderate wind (6-12 mph):</source>
        <translation>Viento moderado (6-12 mph):</translation>
    </message>
    <message>
        <source>High wind (&gt; 12 mph):</source>
        <translation>Viento fuerte (&gt; 12 mph):</translation>
    </message>
    <message>
        <source>0 found: this data pack has no materials in %1</source>
        <translation>0 encontrados: este paquete de datos no tiene materiales en %1</translation>
    </message>
    <message>
        <source>Hazard Class</source>
        <translation>Clase de riesgo</translation>
    </message>
    <message>
        <source>NFPA 704</source>
        <translation>NFPA 704</translation>
    </message>
    <message>
        <source>Note:</source>
        <translation>Nota:</translation>
    </message>
    <message>
        <source>Physical Description:</source>
        <translation>Descripción física:</translation>
    </message>
    <message>
        <source>Synonyms/Trade Names:</source>
        <translation>Sinónimos/nombres comerciales:</translation>
    </message>
    <message>
        <source>Exposure/Protection</source>
        <translation>Exposición/protección</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Table of markings, labels and placards</source>
        <translation>Tabla de marcas, etiquetas y carteles</translation>
    </message>
    <message>
        <source>The guidebook&apos;s placard chart, which names the initial response guide for each placard, is not in this data pack. Identify the material by the shipping document, numbered placard or orange panel number.</source>
        <translation>La tabla de carteles de la guía, que indica la guía de respuesta inicial para cada cartel, no está en este paquete de datos. Identifique el material por el documento de embarque, el cartel numerado o el número del panel naranja.</translation>
    </message>
    <message>
        <source>%1 (guide %2)</source>
        <translation>%1 (guía %2)</translation>
    </message>
    <message>
        <source>The guidebook&apos;s index lists this explosive by its division only.</source>
        <translation>El índice de la guía solo incluye este explosivo por su división.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Special Provisions</source>
        <translation>Disposiciones especiales</translation>
    </message>
    <message>
        <source>Reported Incidents</source>
        <translation>Incidentes notificados</translation>
    </message>
    <message>
        <source>Shipping Regulations</source>
        <translation>Normativa de embarque</translation>
    </message>
    <message>
        <source>International</source>
        <translation>Internacional</translation>
    </message>
    <message>
        <source>Domestic</source>
        <translation>Nacional</translation>
    </message>
    <message>
        <source>%1: isolate %2 %3 in all directions, protect downwind %4 %5; wind from %6°</source>
        <translation>%1: aislar %2 %3 en todas las direcciones, proteger a favor del viento %4 %5; viento desde %6°</translation>
    </message>
    <message>
        <source>%1: cannot create the folder</source>
        <translation>%1: no se puede crear la carpeta</translation>
    </message>
    <message>
        <source>Saved to %1</source>
        <translation>Guardado en %1</translation>
    </message>
    <message>
        <source>Tab, Up, Down</source>
        <translation>Tab, Arriba, Abajo</translation>
    </message>
    <message>
        <source>Move through the rows</source>
        <translation>Recorrer las filas</translation>
    </message>
    <message>
        <source>Enter or Space</source>
        <translation>Intro o Espacio</translation>
    </message>
    <message>
        <source>Open the focused row</source>
        <translation>Abrir la fila seleccionada</translation>
    </message>
    <message>
        <source>Ctrl+C</source>
        <translation>Ctrl+C</translation>
    </message>
    <message>
        <source>Copy the focused name and number</source>
        <translation>Copiar el nombre y el número seleccionados</translation>
    </message>
    <message>
        <source>Ctrl+I</source>
        <translation>Ctrl+I</translation>
    </message>
    <message>
        <source>About the focused section</source>
        <translation>Acerca de la sección seleccionada</translation>
    </message>
    <message>
        <source>Ctrl+Plus</source>
        <translation>Ctrl+Más</translation>
    </message>
    <message>
        <source>Larger text</source>
        <translation>Texto más grande</translation>
    </message>
    <message>
        <source>Ctrl+Minus</source>
        <translation>Ctrl+Menos</translation>
    </message>
    <message>
        <source>Smaller text</source>
        <translation>Texto más pequeño</translation>
    </message>
    <message>
        <source>Switch between ft/miles and m/kms</source>
        <translation>Cambiar entre pies/millas y m/km</translation>
    </message>
    <message>
        <source>Type, Ctrl+F or /</source>
        <translation>Escribir, Ctrl+F o /</translation>
    </message>
    <message>
        <source>Search the materials</source>
        <translation>Buscar los materiales</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Intro</translation>
    </message>
    <message>
        <source>Open the first result</source>
        <translation>Abrir el primer resultado</translation>
    </message>
    <message>
        <source>Up, Down</source>
        <translation>Arriba, Abajo</translation>
    </message>
    <message>
        <source>Move through the results</source>
        <translation>Recorrer los resultados</translation>
    </message>
    <message>
        <source>Ctrl+1, Ctrl+2, Ctrl+3</source>
        <translation>Ctrl+1, Ctrl+2, Ctrl+3</translation>
    </message>
    <message>
        <source>Go to the summary, shipping or protection column</source>
        <translation>Ir a la columna de resumen, embarque o protección</translation>
    </message>
    <message>
        <source>Show the Summary, Shipping or Protection tab</source>
        <translation>Mostrar la pestaña Resumen, Embarque o Protección</translation>
    </message>
    <message>
        <source>Ctrl+P</source>
        <translation>Ctrl+P</translation>
    </message>
    <message>
        <source>Print the guide</source>
        <translation>Imprimir la guía</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Pantalla completa</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Leave full screen, then go back</source>
        <translation>Salir de pantalla completa y luego volver</translation>
    </message>
    <message>
        <source>Esc or Alt+Left</source>
        <translation>Esc o Alt+Izquierda</translation>
    </message>
    <message>
        <source>Tab, Shift+Tab</source>
        <translation>Tab, Mayús+Tab</translation>
    </message>
    <message>
        <source>Move to the next or previous control</source>
        <translation>Ir al control siguiente o anterior</translation>
    </message>
    <message>
        <source>Ctrl+Shift+D</source>
        <translation>Ctrl+Mayús+D</translation>
    </message>
    <message>
        <source>Switch between the light and dark appearance</source>
        <translation>Cambiar entre la apariencia clara y la oscura</translation>
    </message>
    <message>
        <source>F1 or ?</source>
        <translation>F1 o ?</translation>
    </message>
    <message>
        <source>Show these keyboard shortcuts</source>
        <translation>Mostrar estos atajos de teclado</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
</context>
<context>
    <name>ReferencePage</name>
    <message>
        <source>Placards</source>
        <translation>Carteles</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
</context>
<context>
    <name>RegulationPage</name>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Page text</source>
        <translation>Texto de la página</translation>
    </message>
</context>
<context>
    <name>SearchByIdPage</name>
    <message>
        <source>Search by UN Id</source>
        <translation>Buscar por número ONU</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>UN number</source>
        <translation>Número ONU</translation>
    </message>
    <message>
        <source>Hazard Class</source>
        <translation>Clase de riesgo</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Abrir %1</translation>
    </message>
</context>
<context>
    <name>ShippingEntryPage</name>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
</context>
<context>
    <name>TextSizeButton</name>
    <message>
        <source>Text size</source>
        <translation>Tamaño del texto</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
</context>
</TS>
