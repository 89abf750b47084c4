-- The incident summary selects one material's rows by UN number.
create index incidents_un_id on incidents (un_id);
